#include "app/polecenia.h"

#include <algorithm>

#include "app/argumenty.h"
#include "app/kopia_bazy.h"
#include "app/nowa_baza.h"
#include "app/operacje.h"
#include "app/sprawdz_baze.h"
#include "app/srodowisko.h"
#include "app/terminal.h"
#include "ustawienia/rodzaje_przebiegow.h"

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<PolecenieProgramu> UtworzPolecenia() {
  std::vector<PolecenieProgramu> polecenia = {
      {u"nowa-baza", ArgumentPliku::Wymagany, u"tworzy nową bazę danych",
       u"Zakłada bazę ze stawkami VAT, regułami nazw skróconych i parametrami kodów: plik albo tabele w "
       u"pustej\n"
       u"bazie serwera (odbc:DSN=..., odbc:@PLIK). Istniejącego pliku ani tabel nie nadpisuje.",
       GrupaOpcji::Ogolne | GrupaOpcji::NowaBaza, WykonajNowaBaza},
      {u"sprawdz-baze", ArgumentPliku::Brak, u"mówi, czego bazie danych brakuje do pracy z programem",
       u"Sprawdza tabele, kolumny, indeksy, prawa i kodowanie tekstów; niczego nie zmienia. Kod wyjścia: 0, "
       u"gdy\n"
       u"niczego nie brakuje, inaczej 3.",
       GrupaOpcji::Ogolne | GrupaOpcji::Baza, WykonajSprawdzBaze},
      {u"kopia-bazy", ArgumentPliku::Wymagany, u"kopiuje bazę danych do nowego pliku",
       u"Kopia pokazuje bazę z jednej chwili; inne programy mogą w tym czasie na niej pracować. "
       u"Istniejącego\n"
       u"pliku nie nadpisuje, niedokończonej kopii nie zostawia. Bazę na serwerze kopiuje program serwera.",
       GrupaOpcji::Ogolne | GrupaOpcji::Baza, WykonajKopiaBazy},
      {u"ustawienia", ArgumentPliku::Brak, u"wypisuje obowiązujące ustawienia w postaci pliku konfiguracji",
       u"Kolejność: wartości domyślne, plik ZorvikDef.cfg z bieżącego katalogu, ustawienia zapisane\n"
       u"w bazie, --konfiguracja, --ustaw, a na końcu zależności między opcjami.",
       GrupaOpcji::Ogolne | GrupaOpcji::Ustawienia, WykonajUstawienia},
  };
  for (const Operacja& operacja : TabelaOperacji())
    polecenia.push_back({operacja.rodzaj.nazwa, ArgumentPliku::Opcjonalny, operacja.opis, operacja.szczegoly,
                         GrupaOpcji::Ogolne | GrupaOpcji::Ustawienia | GrupaOpcji::Przebieg,
                         [&operacja](const Argumenty& a) { return WykonajOperacje(operacja, a); }});
  return polecenia;
}

constexpr std::u16string_view kStatusy =
    u"Kody wyjścia: 0 zakończono, 2 błędne użycie, 3 odmowa przed rozpoczęciem, 4 błąd w trakcie,\n"
    u"5 przerwano. Ctrl-C przerywa po bieżącym rekordzie; to, co zapisano, zostaje w bazie.\n";

QString ArgumentJakoTekst(ArgumentPliku argument) {
  switch (argument) {
    case ArgumentPliku::Brak:
      return {};
    case ArgumentPliku::Opcjonalny:
      return u" [PLIK]"_s;
    case ArgumentPliku::Wymagany:
      return u" PLIK"_s;
  }
  return {};
}

QString Wiersz(const QString& lewy, std::u16string_view prawy) {
  constexpr qsizetype kSzerokosc = 26;
  const QString odstep = lewy.size() > kSzerokosc ? u"\n"_s + QString(kSzerokosc + 4, u' ') : u"  "_s;
  return u"  "_s + lewy.leftJustified(kSzerokosc) + odstep + Napis(prawy) + u'\n';
}

QString PomocOgolna() {
  QString tekst =
      u"zorvik-cli – import i eksport bazy towarów i kontrahentów\n\n"
      u"Użycie: zorvik-cli POLECENIE [PLIK] [OPCJE]\n\nPolecenia:\n"_s;
  for (const PolecenieProgramu& p : TabelaPolecen())
    tekst += Wiersz(Napis(p.nazwa) + ArgumentJakoTekst(p.plik), p.opis);
  return tekst + PomocOpcji(GrupaOpcji::Ogolne) +
         u"\nOpcje polecenia pokazuje: zorvik-cli POLECENIE --help\n"_s + Napis(kStatusy);
}

QString PomocPolecenia(const PolecenieProgramu& p) {
  QString tekst = u"zorvik-cli "_s + Napis(p.nazwa) + ArgumentJakoTekst(p.plik) + u" [OPCJE]\n  "_s +
                  Napis(p.opis) + u"\n"_s;
  if (!p.szczegoly.empty()) tekst += u'\n' + Napis(p.szczegoly) + u'\n';
  return tekst + PomocOpcji(p.opcje) + u'\n' + Napis(kStatusy);
}

const PolecenieProgramu& ZnajdzPolecenie(const QString& nazwa) {
  const auto& polecenia = TabelaPolecen();
  const auto polecenie = std::find_if(polecenia.begin(), polecenia.end(), [&](const PolecenieProgramu& p) {
    return nazwa == QStringView(p.nazwa);
  });
  if (polecenie == polecenia.end()) throw BladUzycia{u"Nieznane polecenie \"%1\""_s.arg(nazwa)};
  return *polecenie;
}

void SprawdzZgodnosc(const PolecenieProgramu& polecenie, const WynikRozbioru& rozbior) {
  for (const Opcja* opcja : rozbior.uzyte)
    if (!(opcja->grupy & polecenie.opcje))
      throw BladUzycia{u"Polecenie %1 nie ma opcji --%2"_s.arg(Napis(polecenie.nazwa), Napis(opcja->nazwa))};
  if (polecenie.plik == ArgumentPliku::Brak && rozbior.argumenty.plik)
    throw BladUzycia{u"Zbędny argument \"%1\""_s.arg(*rozbior.argumenty.plik)};
  if (polecenie.plik == ArgumentPliku::Wymagany && !rozbior.argumenty.plik)
    throw BladUzycia{u"Nie podano nazwy pliku"_s};
}

StatusWyjscia Wykonaj(const QStringList& slowa) {
  const WynikRozbioru rozbior = RozbierzArgumenty(slowa);
  const Argumenty& a = rozbior.argumenty;
  if (a.wersja) {
    terminal::Wypisz(u"zorvik-cli " ZORVIK_WERSJA "\n"_s);
    return StatusWyjscia::Zakonczono;
  }
  if (a.polecenie.isEmpty()) {
    if (!a.pomoc) throw BladUzycia{u"Nie podano polecenia"_s};
    terminal::Wypisz(PomocOgolna());
    return StatusWyjscia::Zakonczono;
  }
  const PolecenieProgramu& polecenie = ZnajdzPolecenie(a.polecenie);
  if (a.pomoc) {
    terminal::Wypisz(PomocPolecenia(polecenie));
    return StatusWyjscia::Zakonczono;
  }
  SprawdzZgodnosc(polecenie, rozbior);
  return polecenie.wykonaj(a);
}

}  // namespace

QString PomocOpcji(unsigned grupy) {
  QString tekst = u"\nOpcje:\n"_s;
  for (const Opcja& opcja : TabelaOpcji())
    if (opcja.grupy & grupy)
      tekst += Wiersz(
          u"--"_s + Napis(opcja.nazwa) + (opcja.wartosc.empty() ? QString() : u' ' + Napis(opcja.wartosc)),
          opcja.opis);
  return tekst;
}

const std::vector<PolecenieProgramu>& TabelaPolecen() {
  static const std::vector<PolecenieProgramu> polecenia = UtworzPolecenia();
  return polecenia;
}

StatusWyjscia WykonajWierszPolecen(const QStringList& slowa) {
  try {
    return Wykonaj(slowa);
  } catch (const BladUzycia& blad) {
    terminal::WypiszBlad(blad.tekst + u"\nPomoc: zorvik-cli --help\n"_s);
    return StatusWyjscia::BledneUzycie;
  }
}
