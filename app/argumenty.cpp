#include "app/argumenty.h"

#include <algorithm>

#include "platform/nazwa_pliku.h"

using namespace Qt::Literals::StringLiterals;

namespace {

bool PrzyjmijUstawienie(Argumenty& a, const QString& wartosc) {
  const qsizetype znak = wartosc.indexOf(u'=');
  if (znak <= 0) return false;
  a.ustaw.emplace_back(wartosc.left(znak), wartosc.mid(znak + 1));
  return true;
}

bool PrzyjmijLiczbePol(Argumenty& a, const QString& wartosc) {
  constexpr std::pair<std::u16string_view, OdpowiedzLiczbaPol> kOdpowiedzi[] = {
      {u"przerwij", OdpowiedzLiczbaPol::Przerwij},
      {u"pomin", OdpowiedzLiczbaPol::Pomin},
      {u"pomiń", OdpowiedzLiczbaPol::Pomin},
      {u"ignoruj", OdpowiedzLiczbaPol::Ignoruj},
  };
  for (const auto& [nazwa, odpowiedz] : kOdpowiedzi) {
    if (wartosc != QStringView(nazwa)) continue;
    a.liczbaPol = odpowiedz;
    return true;
  }
  return false;
}

bool PrzyjmijSeparator(Argumenty& a, const QString& wartosc) {
  if (wartosc != u"."_s && wartosc != u","_s) return false;
  a.separatorDziesietny = wartosc[0].toLatin1();
  return true;
}

template <std::optional<QString> Argumenty::*Czlon>
bool PrzyjmijTekst(Argumenty& a, const QString& wartosc) {
  a.*Czlon = wartosc;
  return !wartosc.isEmpty();
}

template <bool Argumenty::*Czlon>
bool PrzyjmijFlage(Argumenty& a, const QString& /*wartosc*/) {
  a.*Czlon = true;
  return true;
}

using A = Argumenty;

constexpr Opcja kOpcje[] = {
    {u"baza", u"BAZA",
     u"baza danych: ścieżka pliku, odbc:DSN=... albo odbc:@PLIK; bez tej opcji połączenie domyślne",
     GrupaOpcji::Baza | GrupaOpcji::Ustawienia | GrupaOpcji::Okno, PrzyjmijTekst<&A::baza>},
    {u"konfiguracja", u"PLIK", u"plik konfiguracji stosowany po ustawieniach zapisanych w bazie",
     GrupaOpcji::Ustawienia | GrupaOpcji::Okno, PrzyjmijTekst<&A::konfiguracja>},
    {u"ustaw", u"KLUCZ=WARTOŚĆ", u"pojedyncze ustawienie, stosowane na końcu; opcję można powtarzać",
     GrupaOpcji::Ustawienia, PrzyjmijUstawienie},
    {u"pominiete", u"KATALOG", u"katalog pliku pominiętych rekordów; bez tej opcji katalog programu",
     GrupaOpcji::Przebieg | GrupaOpcji::Okno, PrzyjmijTekst<&A::pominiete>},
    {u"liczba-pol", u"przerwij|pomin|ignoruj",
     u"co zrobić z rekordem o zbyt małej liczbie pól; bez tej opcji: przerwij", GrupaOpcji::Przebieg,
     PrzyjmijLiczbePol},
    {u"separator-dziesietny", u".|,", u"separator dziesiętny; bez tej opcji systemowy", GrupaOpcji::Przebieg,
     PrzyjmijSeparator},
    {u"json", u"", u"wynik jako jeden obiekt JSON na standardowym wyjściu", GrupaOpcji::Przebieg,
     PrzyjmijFlage<&A::json>},
    {u"demo", u"", u"dodaje do nowej bazy dane pokazowego sklepu", GrupaOpcji::NowaBaza,
     PrzyjmijFlage<&A::demo>},
    {u"help", u"", u"ta pomoc", GrupaOpcji::Ogolne | GrupaOpcji::Okno, PrzyjmijFlage<&A::pomoc>},
    {u"wersja", u"", u"wersja programu", GrupaOpcji::Ogolne | GrupaOpcji::Okno, PrzyjmijFlage<&A::wersja>},
    {u"version", u"", u"wersja programu", GrupaOpcji::Okno, PrzyjmijFlage<&A::wersja>},
};

const Opcja& ZnajdzOpcje(const QString& nazwa) {
  const auto opcja = std::find_if(std::begin(kOpcje), std::end(kOpcje),
                                  [&](const Opcja& o) { return nazwa == QStringView(o.nazwa); });
  if (opcja == std::end(kOpcje)) throw BladUzycia{u"Nieznana opcja --%1"_s.arg(nazwa)};
  return *opcja;
}

}  // namespace

std::span<const Opcja> TabelaOpcji() {
  return kOpcje;
}

QStringList SlowaWierszaPolecen(int argc, const char* const* argv) {
  QStringList slowa;
  for (int i = 1; i < argc; ++i) slowa << NazwaZBajtow(argv[i]);
  return slowa;
}

WynikRozbioru RozbierzArgumenty(const QStringList& slowa) {
  WynikRozbioru wynik;
  Argumenty& a = wynik.argumenty;
  bool koniecOpcji = false;
  for (qsizetype i = 0; i < slowa.size(); ++i) {
    const QString& slowo = slowa[i];
    if (!koniecOpcji && slowo == u"--"_s) {
      koniecOpcji = true;
    } else if (!koniecOpcji && slowo.startsWith(u"--"_s)) {
      const qsizetype rowna = slowo.indexOf(u'=');
      const Opcja& opcja = ZnajdzOpcje(slowo.mid(2, rowna < 0 ? -1 : rowna - 2));
      const bool zWartoscia = !opcja.wartosc.empty();
      if (!zWartoscia && rowna >= 0) throw BladUzycia{u"Opcja %1 nie ma wartości"_s.arg(slowo.left(rowna))};
      if (zWartoscia && rowna < 0 && i + 1 == slowa.size())
        throw BladUzycia{u"Brak wartości opcji %1"_s.arg(slowo)};
      const QString wartosc = !zWartoscia ? QString() : rowna >= 0 ? slowo.mid(rowna + 1) : slowa[++i];
      if (!opcja.przyjmij(a, wartosc))
        throw BladUzycia{u"Niewłaściwa wartość opcji --%1: \"%2\""_s.arg(QStringView(opcja.nazwa), wartosc)};
      wynik.uzyte.push_back(&opcja);
    } else if (!koniecOpcji && slowo.size() > 1 && slowo.startsWith(u'-')) {
      throw BladUzycia{u"Nieznana opcja %1"_s.arg(slowo)};
    } else if (a.polecenie.isEmpty()) {
      a.polecenie = slowo;
    } else if (!a.plik) {
      a.plik = slowo;
    } else {
      throw BladUzycia{u"Zbędny argument \"%1\""_s.arg(slowo)};
    }
  }
  return wynik;
}
