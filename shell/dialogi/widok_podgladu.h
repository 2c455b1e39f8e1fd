#pragma once

#include <memory>

#include <QTimer>
#include <QWidget>

#include "exchange/struktura_pliku.h"

class QLabel;
class QStackedLayout;
class QTableWidget;
struct KontekstOkna;
struct PodgladPliku;

// Shows the first records of a file as an import would read them, with the reasons why it would not. Reads
// anew a moment after the last change of the structure, beside the window: a file may lie far away.
class WidokPodgladu final : public QWidget {
 public:
  WidokPodgladu(QWidget* rodzic, KontekstOkna& kontekst);

  void UstawStrukture(const StrukturaPliku& struktura);
  // The file being looked at; another one may have been chosen here.
  const QString& Plik() const { return m_plik; }
  void UstawPlik(const QString& plik);

 private:
  void WybierzPlik();
  void Odswiez();
  void Przyjmij(const PodgladPliku& podglad);
  void PokazPodglad(const PodgladPliku& podglad);
  void PokazWiersze(const PodgladPliku& podglad);

  KontekstOkna& m_kontekst;
  QString m_plik;
  StrukturaPliku m_struktura{RodzajRekordu::Towary};
  QTimer m_zwloka;
  bool m_czyta = false;
  bool m_ponow = false;  // something changed meanwhile
  // Expires with the widget; whoever reads for it asks.
  std::shared_ptr<WidokPodgladu*> m_jestem = std::make_shared<WidokPodgladu*>(this);
  QLabel* m_nazwaPliku;
  QStackedLayout* m_uklad;
  QTableWidget* m_tabela;
  QLabel* m_uwagi;
};
