#pragma once

#include <functional>
#include <memory>

#include <QMainWindow>

#include "shell/kontekst_okna.h"
#include "shell/okno/powiazania.h"
#include "shell/okno/start_okna.h"

class TMStatusButton;
enum class KierunekPliku;
enum class KtoryPrzebieg;
struct RodzajPrzebiegu;
namespace Ui {
class Tfrm_main;
}

// The main window: four pages of options, one per kind of run, and the commands. It owns the settings, which
// its controls show and its runs read, the session that its dialogs share and the goods buffer.
// Order of calls: construction, FormShow, which shows the window or says that it is not to be shown.
class Tfrm_main final : public QMainWindow {
 public:
  Tfrm_main(Rozmowa& rozmowa, StartOkna start);
  ~Tfrm_main() override;

  // Connects, loads the settings and shows the window. False: there is no database to work with; the person
  // knows why.
  bool FormShow();

  KontekstOkna& Kontekst() { return m_kontekst; }

 protected:
  void dragEnterEvent(QDragEnterEvent* zdarzenie) override;
  void dropEvent(QDropEvent* zdarzenie) override;
  void closeEvent(QCloseEvent* zdarzenie) override;

 private:
  void DodajStrony();
  void PodlaczPolecenia();
  // Every command: typing is finished first, an exception is shown.
  void Wykonaj(const std::function<void()>& polecenie);

  // False when the person gives up.
  bool Polacz();
  void PolaczZ(const ParametryPolaczenia& parametry);
  // Goes over to a database, which is made first when it is to be a new one. The reason when it could not:
  // the one worked with so far stays.
  std::optional<QString> Przelacz(const ParametryPolaczenia& parametry, bool nowa);
  // Asks for a database until one is reached, and remembers it.
  bool ZapytajOBaze(const DotychczasowaBaza& dotychczasowa);
  // Shows the database and what it holds of settings.
  void PrzejmijBaze();
  void WczytajUstawienia();
  void WypelnijPozycjeStanow();
  void Pokaz();
  void PoZmianie(const QString& kontrolka);
  void PokazKomunikaty(const std::vector<Komunikat>& komunikaty);
  void Wyjscie(int strona);

  // Of the page that is shown.
  const RodzajPrzebiegu& BiezacyRodzaj() const;
  void Przeprowadz(KtoryPrzebieg ktory);
  void ImportujUpuszczony(const QString& plik);
  bool SprawdzPrzedImportem(const RodzajPrzebiegu& rodzaj);
  // False for a file of the database, which is not even looked into.
  bool SprawdzPlik(const QString& plik, KierunekPliku kierunek);
  void UruchomPrzebieg(const RodzajPrzebiegu& rodzaj, const QString& plik);
  void EdytujStruktureImportu(KtoryPrzebieg ktory);
  void ZapisDoBazyClick();
  void EksportDoPlikuZorvikClick();
  void ImportZPlikuZorvikClick();
  void ZmienBazeClick();
  void OProgramieClick();

  StartOkna m_start;
  KontekstOkna m_kontekst;
  std::unique_ptr<Ui::Tfrm_main> m_ui;
  QString m_tytul;
  std::unique_ptr<Powiazania> m_powiazania;
  bool m_pytajPrzyZamykaniu = true;
};
