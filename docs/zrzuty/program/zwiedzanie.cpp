#include "docs/zrzuty/program/zwiedzanie.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableWidget>
#include <QThreadPool>

#include "app/nowa_baza.h"
#include "docs/zrzuty/program/fotograf.h"
#include "docs/zrzuty/program/pliki_pokazu.h"
#include "model/bledy.h"
#include "model/kontekst.h"
#include "model/kontrahent.h"
#include "shell/formularze/formularze.h"
#include "shell/okno/okno_glowne.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kOdswiezeniePodgladuMs = 300;  // longer than the preview waits for the next change
constexpr int kOdswiezeniePostepuMs = 300;   // longer than the progress window sleeps

// In place of where the pictures are taken.
const QString kAdresBazy = u"/home/sklep/sklep.db"_s;

QByteArray Tresc(const QString& sciezka) {
  QFile plik(sciezka);
  if (!plik.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qPrintable(sciezka));
  return plik.readAll();
}

// Relative names: no picture shows where it was taken.
QString Zapisz(const QString& nazwa, const QByteArray& tresc) {
  QFile plik(nazwa);
  if (!plik.open(QIODevice::WriteOnly) || plik.write(tresc) != tresc.size())
    qFatal("cannot write %s", qPrintable(nazwa));
  return nazwa;
}

template <typename Kontrolka = QAbstractButton>
Kontrolka& Znajdz(QWidget& gdzie, const char* nazwa) {
  auto* const kontrolka = gdzie.findChild<Kontrolka*>(QLatin1String(nazwa));
  if (!kontrolka) qFatal("no control %s", nazwa);
  return *kontrolka;
}

void Kliknij(QWidget& gdzie, const char* nazwa) {
  Znajdz(gdzie, nazwa).click();
}

class Zwiedzanie {
 public:
  Zwiedzanie(Fotograf& fotograf, const QDir& demo) : m_f(fotograf), m_demo(demo) {}

  void PierwszyStart();
  void Otworz();
  void Strony();
  void Eksport();
  void Struktury();
  void Dialogi();
  void Odmowa();
  void ImportKontrahentow();
  void ImportTowarow();
  void Uwagi();
  void FormularzKontrahenta();

 private:
  Ustawienia& U() { return m_okno->Kontekst().ustawienia; }
  void Strona(int numer) { Znajdz<QTabWidget>(*m_okno, "PageControl").setCurrentIndex(numer); }
  void Polecenie(const char* pozycja) { Znajdz<QAction>(*m_okno, pozycja).trigger(); }

  // A picture, then the button of the person's choice.
  Fotograf::Czynnosc Obejrzyj(const QString& nazwa, const char* przycisk);
  Fotograf::Czynnosc Odpowiedz(const QString& nazwa, QMessageBox::StandardButton przycisk);
  // Waits for the end of a run and closes the progress window.
  Fotograf::Czynnosc DoKonca(const QString& nazwa, const char* przedtem = nullptr);
  // Every page of a form; the first one is shown again.
  void Zakladki(QDialog& formularz, const QString& nazwa);
  void Struktura(const QString& nazwa, const char* pozycja = "StrukturaplikuimportuTowMenu");

  Fotograf& m_f;
  const QDir m_demo;
  std::unique_ptr<Tfrm_main> m_okno;
};

Fotograf::Czynnosc Zwiedzanie::Obejrzyj(const QString& nazwa, const char* przycisk) {
  return [this, nazwa, przycisk](QDialog& dialog) {
    Odczekaj(kOdswiezeniePodgladuMs);
    QThreadPool::globalInstance()->waitForDone();
    m_f.Zdjecie(dialog, nazwa);
    Kliknij(dialog, przycisk);
  };
}

// Boxes without a name have been seen before.
Fotograf::Czynnosc Zwiedzanie::Odpowiedz(const QString& nazwa, QMessageBox::StandardButton przycisk) {
  return [this, nazwa, przycisk](QDialog& dialog) {
    if (!nazwa.isEmpty()) m_f.Zdjecie(dialog, nazwa);
    dialog.done(przycisk);
  };
}

Fotograf::Czynnosc Zwiedzanie::DoKonca(const QString& nazwa, const char* przedtem) {
  return [this, nazwa, przedtem](QDialog& postep) {
    PoczekajAz([&] { return Znajdz(postep, "button").text() == u"Zamknij"; });
    m_f.Zdjecie(postep, nazwa);
    if (przedtem) Kliknij(postep, przedtem);
    Kliknij(postep, "button");
  };
}

void Zwiedzanie::Zakladki(QDialog& formularz, const QString& nazwa) {
  auto& zakladki = Znajdz<QTabWidget>(formularz, "zakladki");
  for (int i = 0; i < zakladki.count(); ++i) {
    zakladki.setCurrentIndex(i);
    m_f.Zdjecie(formularz, i == 0 ? nazwa : nazwa + u"-%1"_s.arg(i + 1));
  }
  zakladki.setCurrentIndex(0);
}

void Zwiedzanie::PierwszyStart() {
  m_f.osoba = {[this](QDialog& dialog) {
    m_f.Zdjecie(dialog, u"pierwszy-start"_s);
    dialog.reject();
  }};
  if (Tfrm_main(m_f, {.katalogStartowy = u"."_s, .utworzBaze = {}}).FormShow())
    qFatal("a database was found");
  // A remembered one that is not there any more.
  ParametryPolaczenia nieobecna;
  nieobecna.cel = u"/mnt/sklep/zorvik.db"_s;
  nieobecna.Zapamietaj();
  m_f.osoba = {[this](QDialog& dialog) {
    m_f.Zdjecie(dialog, u"baza-nieosiagalna"_s);
    dialog.reject();
  }};
  if (Tfrm_main(m_f, {.katalogStartowy = u"."_s, .utworzBaze = {}}).FormShow())
    qFatal("the database was found");
}

void Zwiedzanie::Otworz() {
  QDir().mkpath(u"cenniki"_s);
  ParametryPolaczenia baza;
  baza.cel = u"sklep.db"_s;
  if (UtworzNowaBaze(baza, true).status != StatusWyjscia::Zakonczono) qFatal("no demo database");
  m_okno = std::make_unique<Tfrm_main>(m_f, StartOkna{.katalogStartowy = u"."_s,
                                                      .utworzBaze = {},
                                                      .baza = baza,
                                                      .plikKonfiguracji = m_demo.filePath(u"towary.cfg"_s),
                                                      .katalogPominietych = u"."_s});
  if (!m_okno->FormShow()) qFatal("the window does not open");
  Znajdz<QLineEdit>(*m_okno, "EdAdresBazy").setText(kAdresBazy);
  m_f.pliki = {m_demo.filePath(u"kontrahenci.cfg"_s)};
  Polecenie("ImportZPlikuZorvik");
  for (const char* opcja : {"cb_gdyOdbiorca", "cb_gdyDostawca", "cb_gdyStale", "cb_gdyZnamyNIP",
                            "cb_gdyZakladPracyChr", "cb_odbiorca"})
    Kliknij(*m_okno, opcja);
}

void Zwiedzanie::Strony() {
  constexpr std::u16string_view kNazwy[] = {u"import-towarow", u"eksport-towarow", u"import-kontrahentow",
                                            u"eksport-kontrahentow"};
  for (int i = 0; i < 4; ++i) {
    Strona(i);
    m_f.Zdjecie(*m_okno, QStringView(kNazwy[i]).toString());
  }
  Strona(0);
  m_f.osoba = {Odpowiedz(u"wyjscie"_s, QMessageBox::No)};
  Kliknij(Znajdz<QWidget>(*m_okno, "MStatusButtonBar1"), "Wyjscie");
  m_f.osoba = {Odpowiedz(u"o-programie"_s, QMessageBox::Ok)};
  Polecenie("OProgramie");
  m_f.osoba = {Odpowiedz(u"zapis-do-bazy"_s, QMessageBox::Ok)};
  Polecenie("ZapisDoBazy");
  m_f.osoba = {[this](QDialog& dialog) {
    Znajdz<QLineEdit>(dialog, "EdBaza").setText(kAdresBazy);
    m_f.Zdjecie(dialog, u"zmiana-bazy"_s);
    dialog.reject();
  }};
  Polecenie("ZmienBaze");
}

void Zwiedzanie::Eksport() {
  Strona(1);
  m_f.pliki = {u"cenniki/TOWARY_E.txt"_s};
  m_f.osoba = {DoKonca(u"koniec-eksportu"_s), Odpowiedz(u"eksport-zakonczono"_s, QMessageBox::Ok)};
  Polecenie("EksportTowMenu");
  // Once more over the file that is there.
  m_f.pliki = {u"cenniki/TOWARY_E.txt"_s};
  m_f.osoba = {Odpowiedz(u"nadpisanie"_s, QMessageBox::No)};
  Polecenie("EksportTowMenu");
  Strona(0);
}

void Zwiedzanie::Struktura(const QString& nazwa, const char* pozycja) {
  m_f.osoba.push_front(Obejrzyj(nazwa, "Wyjscie"));
  Polecenie(pozycja);
}

void Zwiedzanie::Struktury() {
  const StrukturaPliku byla = U().strukturaTow;
  const QByteArray cennik = Tresc(m_demo.filePath(u"towary.txt"_s));
  const auto pokaz = [&](TypPliku typ, const QString& plik, std::vector<WpisPola> pola,
                         const QString& nazwa) {
    StrukturaPliku& s = U().strukturaTow;
    s.CBTypPliku = typ;
    if (!pola.empty()) s.pola = std::move(pola);
    s.CBNieAnalizujPierwszejLinii = typ == TypPliku::Rozdzielany;
    U().plikImportuTow = plik;
    Struktura(u"struktura-"_s + nazwa);
    if (typ == TypPliku::StalaSzerokosc || typ == TypPliku::DBase) {
      m_f.osoba = {[](QDialog& dialog) {
                     Kliknij(dialog, "Pola");
                     Kliknij(dialog, "Wyjscie");
                   },
                   Obejrzyj(u"lista-pol-"_s + nazwa, "Wyjscie")};
      Polecenie("StrukturaplikuimportuTowMenu");
    }
  };
  pokaz(TypPliku::Rozdzielany, Zapisz(u"cenniki/cennik.txt"_s, CennikZUbytkiem(cennik)), {}, u"separator"_s);
  pokaz(TypPliku::Zorvik, u"cenniki/TOWARY_E.txt"_s, {}, u"zorvik"_s);
  pokaz(TypPliku::StalaSzerokosc, Zapisz(u"cenniki/cennik.prn"_s, CennikStalejSzerokosci(cennik)),
        {WpisPola(PoleTowaru::Kod, u"14"_s), WpisPola(PoleTowaru::Nazwa, u"36"_s),
         WpisPola(PoleTowaru::CenaDet, u"8"_s)},
        u"szerokosc"_s);
  pokaz(TypPliku::DBase, Zapisz(u"cenniki/CENNIK.DBF"_s, CennikDBase(cennik)),
        {WpisPola(PoleTowaru::Kod, u"KOD"_s), WpisPola(PoleTowaru::Nazwa, u"NAZWA"_s),
         WpisPola(PoleTowaru::CenaDet, u"CENA"_s)},
        u"dbase"_s);
  U().strukturaTow = byla;
  U().plikImportuKontr = Zapisz(u"cenniki/kontrahenci.txt"_s, Tresc(m_demo.filePath(u"kontrahenci.txt"_s)));
  Struktura(u"struktura-kontrahentow"_s, "StrukturaplikuimportuKontrMenu");
}

void Zwiedzanie::Dialogi() {
  U().plikImportuTow = u"cenniki/cennik.txt"_s;
  m_f.osoba = {[](QDialog& struktura) {
                 Kliknij(struktura, "Pola");
                 Kliknij(struktura, "OpisStawekVAT");
                 Kliknij(struktura, "Wyjscie");
               },
               [this](QDialog& pola) {
                 Obejrzyj(u"lista-pol"_s, "PolaStandardowe")(pola);
                 Kliknij(pola, "Wyjscie");
               },
               Obejrzyj(u"pola-standardowe"_s, "Wyjscie"),
               [this](QDialog& opisy) {
                 Obejrzyj(u"opis-vat"_s, "Stawki")(opisy);
                 Kliknij(opisy, "Wyjscie");
               },
               [this](QDialog& stawki) {
                 m_f.Zdjecie(stawki, u"stawki-vat"_s);
                 Kliknij(stawki, "Zmien");
                 Kliknij(stawki, "Usun");
                 Kliknij(stawki, "Zapisz");
                 Kliknij(stawki, "Wyjscie");
               },
               [this](QDialog& stawka) {
                 m_f.Zdjecie(stawka, u"stawka"_s);
                 stawka.reject();
               },
               Odpowiedz(u"zmiana-stawek"_s, QMessageBox::Cancel),
               Odpowiedz(u"porzucenie-zmian"_s, QMessageBox::Yes)};
  Polecenie("StrukturaplikuimportuTowMenu");
}

void Zwiedzanie::Odmowa() {
  const StrukturaPliku byla = U().strukturaTow;
  U().strukturaTow.pola.clear();
  m_f.osoba = {Odpowiedz(u"odmowa"_s, QMessageBox::Ok)};
  Polecenie("ImportTowMenu");
  U().strukturaTow = byla;
}

void Zwiedzanie::ImportKontrahentow() {
  m_f.pliki = {m_demo.filePath(u"kontrahenci.txt"_s)};
  m_f.osoba = {DoKonca(u"koniec-importu-kontrahentow"_s), Odpowiedz({}, QMessageBox::Ok)};
  Polecenie("ImportKontrMenu");
}

void Zwiedzanie::ImportTowarow() {
  Kliknij(*m_okno, "RBDodajTowarBezNazwy");
  m_f.pliki = {Zapisz(u"towary.txt"_s, CennikZPytaniami(Tresc(m_demo.filePath(u"towary.txt"_s))))};
  m_f.osoba = {
      DoKonca(u"koniec-importu"_s, "pominiete"),
      [this](QDialog& pytanie) {
        m_f.Zdjecie(pytanie, u"pytanie-o-nazwe"_s);
        pytanie.reject();
      },
      [this](QDialog& formularz) {
        Zakladki(formularz, u"poprawianie-towaru"_s);
        Znajdz<QLineEdit>(formularz, "Nazwa").insert(u"Guma balonowa"_s);
        Kliknij(formularz, "Zapisz");
      },
      Odpowiedz(u"pytanie-o-skrot"_s, QMessageBox::No),
      [this](QDialog& formularz) {
        m_f.Zdjecie(formularz, u"poprawianie-kodu"_s);
        Kliknij(formularz, "Rezygnuj");
      },
      Odpowiedz(u"nie-poprawiasz"_s, QMessageBox::Yes),
      Odpowiedz(u"zignorowac"_s, QMessageBox::Yes),
      [this](QDialog& pytanie) {
        Odczekaj(kOdswiezeniePostepuMs);
        m_f.Zdjecie(*pytanie.parentWidget(), u"przebieg"_s);
        m_f.Zdjecie(pytanie, u"pytanie-o-liczbe-pol"_s);
        pytanie.done(QMessageBox::Retry);
      },
      Odpowiedz(u"import-zakonczono"_s, QMessageBox::Ok),
      Odpowiedz(u"stany"_s, QMessageBox::Ok),
      Obejrzyj(u"pominiete"_s, "zamknij"),
  };
  Polecenie("ImportTowMenu");
}

void Zwiedzanie::Uwagi() {
  StrukturaPliku& s = U().strukturaTow;
  const StrukturaPliku byla = s;
  s.separator = u","_s;
  s.pola.clear();
  for (const int pole : {PoleTowaru::Kod, PoleTowaru::Nazwa, PoleTowaru::CenaDet, PoleTowaru::StawkaVat,
                         PoleTowaru::JednostkaMiary, PoleTowaru::Asortyment})
    s.pola.emplace_back(pole, QString());
  U().plikImportuTow = Zapisz(u"cenniki/hurtownia.txt"_s, CennikZUwagami());
  Struktura(u"struktura-uwagi"_s);
  Kliknij(*m_okno, "cb_nowestawki");
  m_f.pliki = {U().plikImportuTow};
  m_f.osoba = {DoKonca(u"koniec-z-uwagami"_s, "uwagi"), Odpowiedz({}, QMessageBox::Ok),
               Obejrzyj(u"uwagi"_s, "zamknij")};
  Polecenie("ImportTowMenu");
  U().strukturaTow = byla;
}

void Zwiedzanie::FormularzKontrahenta() {
  KontekstSesji sesja{m_okno->Kontekst().baza, m_okno->Kontekst().parametry};
  TDmVLTKontrahent kontrahent(sesja);
  kontrahent.Wczytaj(1);
  kontrahent.UstawSklep(true);
  m_f.osoba = {[this](QDialog& formularz) {
    Zakladki(formularz, u"poprawianie-kontrahenta"_s);
    Kliknij(formularz, "Rezygnuj");
  }};
  PoprawWFormularzu(m_okno.get(), m_f, kontrahent,
                    {u"Numer sklepu nie jest unikalny"_s, EVLTWDError(2860, nullptr, u"1"_s)});
}

}  // namespace

void Zwiedz(Fotograf& fotograf, const QDir& demo) {
  Zwiedzanie z(fotograf, demo);
  z.PierwszyStart();
  z.Otworz();
  z.Strony();
  z.Eksport();
  z.Struktury();
  z.Dialogi();
  z.Odmowa();
  z.ImportKontrahentow();
  z.ImportTowarow();
  z.Uwagi();
  z.FormularzKontrahenta();
}
