#pragma once

#include <optional>
#include <vector>

#include <QScrollArea>

#include "model/kategorie.h"
#include "model/szczegoly_towaru.h"
#include "platform/baza/zapytanie.h"

class PoleFormularza;

// The parameters of a good's category and their values, a row each: a list to choose from or a number.
class ParametryTowaru final : public QScrollArea {
 public:
  explicit ParametryTowaru(QWidget* rodzic = nullptr);

  // Reads the dictionaries; `katId` and the values are the good's. The rows will follow `poprzednia` in the
  // tab order. Throws EBladBazy.
  void Wczytaj(KontekstSesji& sesja, int katId, const WartosciParametrow& wartosci, QWidget& poprzednia);
  // What the good has no value for starts at 0 in another category than its own.
  void PokazKategorie(int katId);
  bool Puste() const { return m_wiersze.empty(); }

  // Shows every fault; the first control that has one, or null.
  QWidget* Sprawdz();
  // What the person has changed. Another category: its parameters have a value, and no others.
  void Wpisz(WartosciParametrow& wartosci);

 private:
  struct Wiersz {
    int parId;
    TMField wartosc;
    PoleFormularza* pole;
  };

  PoleFormularza* UtworzPole(int parId, const QString& podpis, const TMField& wartosc);
  QString Podpis(int parId);

  std::optional<TDmVLTListaKategorii> m_kategorie;
  std::optional<TDmVLTListaParametrow> m_parametry;
  KontekstSesji* m_sesja = nullptr;
  QWidget* m_poprzednia = nullptr;
  WartosciParametrow m_wartosci;  // of the good
  int m_katIdTowaru = -1;
  int m_katId = -1;
  std::vector<Wiersz> m_wiersze;
};
