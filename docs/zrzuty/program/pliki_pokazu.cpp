#include "docs/zrzuty/program/pliki_pokazu.h"

#include <QByteArrayList>

#include "tests/exchange/tabela_dbase.h"

namespace {

constexpr int kNaglowek = 2;  // lines: the names of the columns and a comment
constexpr int kPierwszych = 20;
constexpr int kUbytek = 7;  // which record
constexpr int kPrzedUbytkiem = 24'000;
constexpr int kPoUbytku = 12'000;
constexpr int kPol = 5;
constexpr int kSzerokosci[] = {14, 36, 8};

struct Pozycja {
  QByteArray kod, nazwa, cena;
};

QByteArrayList Linie(const QByteArray& cennik) {
  QByteArrayList linie = cennik.split('\n');
  for (QByteArray& linia : linie) linia = linia.trimmed();
  linie.removeAll({});
  return linie;
}

Pozycja Rozbierz(const QByteArray& linia) {
  const QByteArrayList pola = linia.split(';');
  return {pola[0], QByteArray(pola[1]).replace('"', ""), pola[6]};
}

QByteArray Urwana(const QByteArray& linia) {
  return linia.split(';').first(kPol).join(';');
}

// With its check digit.
QByteArray KodKreskowy(int numer) {
  const QByteArray cyfry = "59" + QByteArray::number(1'000'000'000 + numer);
  int suma = 0;
  for (int i = 0; i < cyfry.size(); ++i) suma += (cyfry[i] - '0') * (i % 2 == 0 ? 1 : 3);
  return cyfry + QByteArray::number((10 - suma % 10) % 10);
}

QByteArray Towar(int numer, const QByteArray& nazwa, const QByteArray& kodDodatkowy = {}) {
  return KodKreskowy(numer) + ";\"" + nazwa + "\";T;;;1,00;1,49;23%;\"R\xF3\xBFne\";szt.;" + kodDodatkowy +
         ";;;;;;A";
}

}  // namespace

QByteArray CennikZUbytkiem(const QByteArray& cennik) {
  QByteArrayList linie = Linie(cennik).first(kNaglowek + kPierwszych);
  linie[kNaglowek + kUbytek - 1] = Urwana(linie[kNaglowek + kUbytek - 1]);
  return linie.join("\r\n") + "\r\n";
}

QByteArray CennikStalejSzerokosci(const QByteArray& cennik) {
  QByteArray tresc;
  for (const QByteArray& linia : Linie(cennik).sliced(kNaglowek, kPierwszych)) {
    const auto [kod, nazwa, cena] = Rozbierz(linia);
    tresc += kod.leftJustified(kSzerokosci[0], ' ', true) + nazwa.leftJustified(kSzerokosci[1], ' ', true) +
             cena.rightJustified(kSzerokosci[2], ' ', true) + "\r\n";
  }
  return tresc;
}

QByteArray CennikDBase(const QByteArray& cennik) {
  Tabela tabela{.pola = {{"KOD", kSzerokosci[0]}, {"NAZWA", kSzerokosci[1]}, {"CENA", kSzerokosci[2]}}};
  for (const QByteArray& linia : CennikStalejSzerokosci(cennik).split('\n'))
    if (!linia.isEmpty()) tabela.rekordy.push_back(' ' + linia.chopped(1).toStdString());
  QByteArray bajty = QByteArray::fromStdString(tabela.Bajty());
  bajty[4] = kPierwszych;  // how many records its header tells of
  return bajty;
}

QByteArray CennikZPytaniami(const QByteArray& cennik) {
  QByteArrayList linie = Linie(cennik);
  int numer = 0;
  linie << Towar(++numer, "Mleko kozie 0,5 l", "(5900000000008|Mleko UHT 1 l 2%|)");
  const auto dopisz = [&](int ile) {
    for (const int koniec = numer + ile; numer < koniec;) {
      ++numer;
      linie << Towar(numer, "Artyku\xB3 " + QByteArray::number(numer));
    }
  };
  dopisz(kPrzedUbytkiem);
  linie << Urwana(Towar(++numer, "Zapa\xB3ki"));
  dopisz(kPoUbytku);
  return linie.join("\r\n") + "\r\n";
}

QByteArray CennikZUwagami() {
  constexpr const char* kNazwy[] = {
      "D\xA7"
      "em truskawkowy 280 g",
      "Mi\xA2"
      "d wielokwiatowy 400 g",
      "Ketchup \x88"
      "agodny 450 g",
      "Musztarda sarepska 180 g", "Chrzan tarty 180 g"};
  constexpr const char* kCeny[] = {"4.29", "18.99", "\"5,49\"", "2.79", "3.19"};
  constexpr const char* kStawki[] = {"5%", "\"5%\"", "8%", "7%", "8%"};
  QByteArrayList linie{"kod,nazwa,cena,VAT,jm,grupa"};
  for (int i = 0; i < kPierwszych; ++i) {
    const int w = i % static_cast<int>(std::size(kNazwy));
    linie << KodKreskowy(90'000'000 + i) + ',' + kNazwy[w] +
                 (i < 5 ? "" : " nr " + QByteArray::number(i / 5 + 1)) + ',' + kCeny[w] + ',' + kStawki[w] +
                 ",szt.,Przetwory";
  }
  return linie.join("\r\n") + "\r\n";
}
