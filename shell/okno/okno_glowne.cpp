#include "shell/okno/okno_glowne.h"

#include <utility>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScreen>

#include <ui_okno_glowne.h>

#include "exchange/czytnik.h"
#include "model/kontekst.h"
#include "platform/liczby.h"
#include "platform/nazwa_pliku.h"
#include "platform/wyjatek.h"
#include "run/pliki_zastrzezone.h"
#include "shell/dialogi/dialogi.h"
#include "shell/kontrolki/pasek_przyciskow.h"
#include "shell/kontrolki/pozniej.h"
#include "shell/okno/strony.h"
#include "shell/okno/wybor_pliku.h"
#include "shell/przebieg/wykonanie_przebiegu.h"
#include "shell/rozmowa.h"
#include "ustawienia/kontrola_struktury.h"
#include "ustawienia/magazyn_ustawien.h"
#include "ustawienia/pozycje_stanow.h"
#include "ustawienia/reguly_kontrolek.h"
#include "ustawienia/rodzaje_przebiegow.h"
#include "ustawienia/wspolzaleznosci.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Ikona = Rozmowa::Ikona;
using std::bind_front;

QString Napis(std::u16string_view tekst) {
  return QStringView(tekst).toString();
}

QLatin1String Nazwa(std::string_view nazwa) {
  return QLatin1String(QByteArrayView(nazwa));
}

// The one local file that is dragged; empty when it is anything else.
QString PrzeciaganyPlik(const QMimeData& dane) {
  const QList<QUrl> adresy = dane.urls();
  if (adresy.size() != 1 || !adresy.constFirst().isLocalFile()) return {};
  return NazwaZBajtow(
      QByteArray::fromPercentEncoding(adresy.constFirst().path(QUrl::FullyEncoded).toLatin1()));
}

// What the run would say of the file first of all.
std::optional<Komunikat> OdmowaPliku(const StrukturaPliku& struktura, const QString& plik) {
  const std::unique_ptr<Czytnik> czytnik = UtworzCzytnik(struktura);
  if (auto odmowa = czytnik->Otworz(plik)) return odmowa;
  return czytnik->SprawdzPola();
}

}  // namespace

Tfrm_main::Tfrm_main(Rozmowa& rozmowa, StartOkna start)
    : m_start(std::move(start)), m_kontekst{rozmowa}, m_ui(std::make_unique<Ui::Tfrm_main>()) {
  m_ui->setupUi(this);
  m_tytul = windowTitle();
  // To be read, not filled in: it stands on the window itself.
  QPalette tlo;
  tlo.setBrush(QPalette::Base, Qt::transparent);
  m_ui->EdAdresBazy->setPalette(tlo);
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  setAcceptDrops(true);
  DodajStrony();
  PodlaczPolecenia();
  m_powiazania = std::make_unique<Powiazania>(*this, m_kontekst.ustawienia);
  m_powiazania->PoZmianie = [this](const QString& kontrolka) { PoZmianie(kontrolka); };
}

Tfrm_main::~Tfrm_main() = default;

void Tfrm_main::DodajStrony() {
  for (const OpisStrony& opis : TabelaStron()) {
    QWidget* const strona = opis.utworz();
    const int numer = m_ui->PageControl->addTab(strona, strona->windowTitle());
    auto* const pasek = strona->findChild<TMStatusButtonBar*>(Nazwa(opis.pasek));
    for (const PrzyciskStrony& p : opis.przyciski)
      if (!p.nazwa.empty()) pasek->Dodaj(Napis(p.nazwa), Napis(p.tekst), Napis(p.klawisz));
    pasek->Dodaj(u"Wyjscie"_s, u"Wyjście"_s, u"Esc"_s);
    pasek->ButtonClick = [this, &opis, numer](const TMStatusButton& przycisk) {
      if (m_ui->PageControl->currentIndex() != numer) return;
      if (przycisk.IsTheSameName(u"Wyjscie")) return Wyjscie(numer);
      for (const PrzyciskStrony& p : opis.przyciski)
        if (przycisk.IsTheSameName(p.nazwa)) findChild<QAction*>(Nazwa(p.pozycjaMenu))->trigger();
    };
  }
}

void Tfrm_main::PodlaczPolecenia() {
  const struct {
    QAction* pozycja;
    std::function<void()> wykonaj;
  } polecenia[] = {
      {m_ui->ImportTowMenu, bind_front(&Tfrm_main::Przeprowadz, this, KtoryPrzebieg::ImportTowarow)},
      {m_ui->EksportTowMenu, bind_front(&Tfrm_main::Przeprowadz, this, KtoryPrzebieg::EksportTowarow)},
      {m_ui->ImportKontrMenu, bind_front(&Tfrm_main::Przeprowadz, this, KtoryPrzebieg::ImportKontrahentow)},
      {m_ui->EksportKontrMenu, bind_front(&Tfrm_main::Przeprowadz, this, KtoryPrzebieg::EksportKontrahentow)},
      {m_ui->StrukturaplikuimportuTowMenu,
       bind_front(&Tfrm_main::EdytujStruktureImportu, this, KtoryPrzebieg::ImportTowarow)},
      {m_ui->StrukturaplikuimportuKontrMenu,
       bind_front(&Tfrm_main::EdytujStruktureImportu, this, KtoryPrzebieg::ImportKontrahentow)},
      {m_ui->ZapisDoBazy, bind_front(&Tfrm_main::ZapisDoBazyClick, this)},
      {m_ui->EksportDoPlikuZorvik, bind_front(&Tfrm_main::EksportDoPlikuZorvikClick, this)},
      {m_ui->ImportZPlikuZorvik, bind_front(&Tfrm_main::ImportZPlikuZorvikClick, this)},
      {m_ui->ZmienBaze, bind_front(&Tfrm_main::ZmienBazeClick, this)},
      {m_ui->OProgramie, bind_front(&Tfrm_main::OProgramieClick, this)},
  };
  for (const auto& polecenie : polecenia)
    connect(polecenie.pozycja, &QAction::triggered, this,
            [this, wykonaj = polecenie.wykonaj] { Wykonaj(wykonaj); });
}

void Tfrm_main::Wykonaj(const std::function<void()>& polecenie) {
  if (auto* const pole = qobject_cast<QAbstractSpinBox*>(focusWidget())) pole->interpretText();
  try {
    polecenie();
  } catch (const EMException& blad) {
    m_kontekst.rozmowa.PokazBlad(this, blad);
  }
}

bool Tfrm_main::FormShow() {
  try {
    if (!Polacz()) return false;
  } catch (const EMException& blad) {
    m_kontekst.rozmowa.PokazBlad(this, blad);
    return false;
  }
  PrzejmijBaze();
  if (!m_kontekst.baza.Polaczona()) return false;
  adjustSize();
  move(screen()->availableGeometry().center() - rect().center());
  show();
  return true;
}

// A remembered database that cannot be reached does not lock the person out: it may be tried again, or
// another one named.
bool Tfrm_main::Polacz() {
  if (m_start.baza) {
    PolaczZ(*m_start.baza);
    return true;
  }
  DotychczasowaBaza zapamietana{.adres = ParametryPolaczenia::Domyslne()};
  if (zapamietana.adres) {
    zapamietana.powod = Przelacz(*zapamietana.adres, false);
    if (!zapamietana.powod) return true;
  }
  return ZapytajOBaze(zapamietana);
}

// The connection so far is given up only for one that has been seen to stand.
void Tfrm_main::PolaczZ(const ParametryPolaczenia& parametry) {
  const auto polacz = [](TVLTBazaDanych& baza, ParametrySystemu& systemu) {
    try {
      baza.Polacz();
      systemu.Wczytaj(baza);
    } catch (...) {
      baza.Odlacz();
      throw;
    }
  };
  if (m_kontekst.baza.Polaczona()) {
    TVLTBazaDanych proba(parametry);
    ParametrySystemu systemu;
    polacz(proba, systemu);
  }
  m_kontekst.baza.UstawPolaczenie(parametry);
  polacz(m_kontekst.baza, m_kontekst.parametry);
}

std::optional<QString> Tfrm_main::Przelacz(const ParametryPolaczenia& parametry, bool nowa) {
  if (nowa)
    if (const auto odmowa = m_start.utworzBaze(parametry)) return odmowa->tekst;
  try {
    PolaczZ(parametry);
    return std::nullopt;
  } catch (const EMException& blad) {
    return TrescZPrzyczyna(blad);
  }
}

bool Tfrm_main::ZapytajOBaze(const DotychczasowaBaza& dotychczasowa) {
  Tfrm_polaczenie okno(this, m_kontekst.rozmowa, dotychczasowa, bind_front(&Tfrm_main::Przelacz, this));
  if (m_kontekst.rozmowa.Pokaz(okno) != QDialog::Accepted) return false;
  if (const auto powod = m_kontekst.baza.Parametry().Zapamietaj())
    PokazKomunikaty({{u"UWAGA"_s, u"Nie udało się zapamiętać połączenia w pliku "_s +
                                      ParametryPolaczenia::PlikDomyslnych() + u'\n' + *powod}});
  return true;
}

// What cannot be read takes nothing else with it: settings are there before the warehouses are looked for.
void Tfrm_main::PrzejmijBaze() {
  setWindowTitle(m_tytul + u" ("_s + m_kontekst.baza.Nazwa() + u')');
  const QString adres = AdresBazy(m_kontekst.baza.Parametry());
  m_ui->EdAdresBazy->setText(adres);
  m_ui->EdAdresBazy->setCursorPosition(0);
  m_ui->EdAdresBazy->setToolTip(adres);
  m_kontekst.bufor.Uniewaznij();
  Wykonaj([this] { WczytajUstawienia(); });
  Wykonaj([this] { WypelnijPozycjeStanow(); });
  Pokaz();
}

void Tfrm_main::WczytajUstawienia() {
  PokazKomunikaty(magazyn_ustawien::WczytajUstawienia({.katalogStartowy = m_start.katalogStartowy,
                                                       .baza = &m_kontekst.baza,
                                                       .plikKonfiguracji = m_start.plikKonfiguracji},
                                                      m_kontekst.ustawienia)
                      .komunikaty);
}

void Tfrm_main::WypelnijPozycjeStanow() {
  KontekstSesji sesja{m_kontekst.baza, m_kontekst.parametry};
  const std::pair<QLatin1String, QStringList> listy[] = {
      {"CBImportStanow"_L1, PozycjeImportuStanow(sesja)},
      {"CBEksportStanow"_L1, PozycjeEksportuStanow(sesja)}};
  for (const auto& [nazwa, pozycje] : listy) {
    auto* const lista = findChild<QComboBox*>(nazwa);
    const QSignalBlocker cisza(lista);
    lista->clear();
    lista->addItems(pozycje);
  }
}

void Tfrm_main::Pokaz() {
  m_powiazania->Pokaz();
  for (const auto& [kontrolka, dostepna] : wspolzaleznosci::TabelaDostepnosci())
    findChild<QWidget*>(Nazwa(kontrolka))->setEnabled(dostepna(m_kontekst.ustawienia));
}

void Tfrm_main::PoZmianie(const QString& kontrolka) {
  const auto komunikat = wspolzaleznosci::PoZmianieKontrolki(m_kontekst.ustawienia, kontrolka);
  Pokaz();
  if (komunikat) PokazKomunikaty({*komunikat});
}

void Tfrm_main::PokazKomunikaty(const std::vector<Komunikat>& komunikaty) {
  for (const Komunikat& komunikat : komunikaty)
    m_kontekst.rozmowa.Powiedz(this, komunikat,
                               komunikat.naglowek == u"BŁĄD" ? Ikona::Critical : Ikona::Warning);
}

// The pages whose way out does not ask close at once; everything else that closes the window asks.
void Tfrm_main::Wyjscie(int strona) {
  const QScopedValueRollback pytaj(m_pytajPrzyZamykaniu,
                                   TabelaStron()[static_cast<std::size_t>(strona)].pytaPrzyWyjsciu);
  close();
}

void Tfrm_main::closeEvent(QCloseEvent* zdarzenie) {
  zdarzenie->setAccepted(
      !m_pytajPrzyZamykaniu ||
      m_kontekst.rozmowa.CzyTak(this, {u"Uwaga"_s, u"Czy rzeczywiście chcesz opuścić program"_s}));
}

const RodzajPrzebiegu& Tfrm_main::BiezacyRodzaj() const {
  return Rodzaj(TabelaStron()[static_cast<std::size_t>(m_ui->PageControl->currentIndex())].przebieg);
}

void Tfrm_main::Przeprowadz(KtoryPrzebieg ktory) {
  const RodzajPrzebiegu& rodzaj = Rodzaj(ktory);
  if (!SprawdzPrzedImportem(rodzaj)) return;
  if (const auto plik = WybierzPlikPrzebiegu(this, m_kontekst.rozmowa, rodzaj, m_kontekst.ustawienia,
                                             m_start.katalogStartowy))
    UruchomPrzebieg(rodzaj, *plik);
}

void Tfrm_main::ImportujUpuszczony(const QString& plik) {
  const RodzajPrzebiegu& rodzaj = BiezacyRodzaj();
  if (SprawdzPrzedImportem(rodzaj) &&
      m_kontekst.rozmowa.CzyTak(this, {Napis(rodzaj.tytul), u"Czy importować plik "_s + plik}))
    UruchomPrzebieg(rodzaj, plik);
}

bool Tfrm_main::SprawdzPrzedImportem(const RodzajPrzebiegu& rodzaj) {
  if (rodzaj.kierunek != Kierunek::Import) return true;
  const auto odmowa = SprawdzStrukture(m_kontekst.ustawienia.*rodzaj.struktura);
  if (odmowa) PokazKomunikaty({*odmowa});
  return !odmowa;
}

bool Tfrm_main::SprawdzPlik(const QString& plik, KierunekPliku kierunek) {
  const auto odmowa = OdmowaPlikuBazy(m_kontekst.baza.Parametry(), plik, kierunek);
  if (odmowa) PokazKomunikaty({*odmowa});
  return !odmowa;
}

void Tfrm_main::UruchomPrzebieg(const RodzajPrzebiegu& rodzaj, const QString& plik) {
  Ustawienia& ustawienia = m_kontekst.ustawienia;
  const StrukturaPliku& struktura = ustawienia.*rodzaj.struktura;
  if (rodzaj.kierunek == Kierunek::Import) {
    if (!SprawdzPlik(plik, KierunekPliku::Odczyt)) return;
    if (const auto odmowa = OdmowaPliku(struktura, plik)) return PokazKomunikaty({*odmowa});
  }
  ZapamietajPlikPrzebiegu(rodzaj, plik, ustawienia);
  m_kontekst.parametry.Wczytaj(m_kontekst.baza);
  const auto wykonaj = [&](const ZadaniePrzebiegu::Otoczenie& otoczenie) {
    TVLTBazaDanych baza(m_kontekst.baza.Parametry());
    KontekstSesji sesja{baza, m_kontekst.parametry, otoczenie.fabrykaFormularzy};
    return rodzaj.wykonaj({.sesja = sesja,
                           .struktura = struktura,
                           .plik = plik,
                           .postep = otoczenie.postep,
                           .oper = otoczenie.oper,
                           .stop = otoczenie.stop,
                           .separatorDziesietny = liczby::SeparatorSystemu(),
                           .katalogPominietych = m_start.katalogPominietych},
                          ustawienia, m_kontekst.bufor);
  };
  const WynikPrzebiegu wynik =
      WykonajZOknemPostepu(this, m_kontekst.rozmowa, {Napis(rodzaj.tytulPostepu), wykonaj});
  if (wynik.koniec == KoniecPrzebiegu::Blad) return;
  // The run may have made the first warehouse.
  WypelnijPozycjeStanow();
  Pokaz();
}

void Tfrm_main::EdytujStruktureImportu(KtoryPrzebieg ktory) {
  const RodzajPrzebiegu& rodzaj = Rodzaj(ktory);
  Ustawienia& u = m_kontekst.ustawienia;
  if (!EdytujStrukture(this, m_kontekst, u.*rodzaj.struktura, u.*rodzaj.plik)) return;
  ktory == KtoryPrzebieg::ImportTowarow ? wspolzaleznosci::PoZmianieStrukturyTow(u)
                                        : wspolzaleznosci::PoZmianieStrukturyKontr(u);
  Pokaz();
}

void Tfrm_main::ZapisDoBazyClick() {
  magazyn_ustawien::ZapiszDoBazy(m_kontekst.baza, m_kontekst.ustawienia);
  m_kontekst.rozmowa.Powiedz(this, {u"Zapis do bazy"_s, u"Ustawienia zapisano w bazie danych"_s},
                             Ikona::Information);
}

void Tfrm_main::EksportDoPlikuZorvikClick() {
  Ustawienia& u = m_kontekst.ustawienia;
  const auto plik = WybierzPlikKonfiguracji(this, m_kontekst.rozmowa, Kierunek::Eksport, u);
  if (!plik || !SprawdzPlik(*plik, KierunekPliku::Zapis)) return;
  u.plikKonfiguracji = *plik;
  PokazKomunikaty(magazyn_ustawien::EksportujDoPliku(*plik, u));
}

void Tfrm_main::ImportZPlikuZorvikClick() {
  Ustawienia& u = m_kontekst.ustawienia;
  const auto plik = WybierzPlikKonfiguracji(this, m_kontekst.rozmowa, Kierunek::Import, u);
  if (!plik || !SprawdzPlik(*plik, KierunekPliku::Odczyt)) return;
  const auto wynik = magazyn_ustawien::ImportujZPliku(*plik, u);
  if (wynik.wczytano) u.plikKonfiguracji = *plik;
  wspolzaleznosci::ZastosujWspolzaleznosci(u);
  Pokaz();
  PokazKomunikaty(wynik.komunikaty);
}

void Tfrm_main::ZmienBazeClick() {
  if (ZapytajOBaze({.adres = m_kontekst.baza.Parametry()})) PrzejmijBaze();
}

void Tfrm_main::OProgramieClick() {
  m_kontekst.rozmowa.Powiedz(
      this,
      {u"O programie"_s, u"Zorvik, wersja "_s + QCoreApplication::applicationVersion() + u'\n' + m_tytul},
      Ikona::Information);
}

// A modal window, such as that of a run, does not keep a drag away.
void Tfrm_main::dragEnterEvent(QDragEnterEvent* zdarzenie) {
  if (!QApplication::activeModalWidget() && BiezacyRodzaj().kierunek == Kierunek::Import &&
      !PrzeciaganyPlik(*zdarzenie->mimeData()).isEmpty())
    zdarzenie->acceptProposedAction();
}

// The program that the file comes from waits until the drop is over; the questions come after it.
void Tfrm_main::dropEvent(QDropEvent* zdarzenie) {
  const QString plik = PrzeciaganyPlik(*zdarzenie->mimeData());
  zdarzenie->acceptProposedAction();
  Pozniej(*this, [this, plik] { Wykonaj([&] { ImportujUpuszczony(plik); }); });
}
