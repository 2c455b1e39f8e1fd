#include <gtest/gtest.h>

#include "shell/dialogi/podglad_pliku.h"
#include "tests/exchange/pliki_probne.h"
#include "tests/exchange/tabela_dbase.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::literals::string_literals;

namespace {

// A row's values divided by "|", a remark behind "!".
QStringList Wiersze(const PodgladPliku& podglad) {
  QStringList wiersze;
  for (const PodgladPliku::Wiersz& wiersz : podglad.wiersze)
    wiersze << wiersz.wartosci.join(u'|') + (wiersz.uwaga.isEmpty() ? QString() : u'!' + wiersz.uwaga);
  return wiersze;
}

StrukturaPliku Towary(TypPliku typ, const QString& pola, const QString& separator = ";") {
  StrukturaPliku struktura = Struktura(RodzajRekordu::Towary, typ, pola.split(u' ', Qt::SkipEmptyParts));
  struktura.separator = separator;
  return struktura;
}

void Sprawdz(const StrukturaPliku& struktura, const std::string& tresc, const QStringList& wiersze,
             const QString& powod = {}, const QString& naglowki = u"Kod kreskowy|Nazwa towaru"_s) {
  SCOPED_TRACE(tresc);
  const PodgladPliku podglad = CzytajPodglad(struktura, PlikProbny(tresc).Sciezka());
  EXPECT_EQ(podglad.naglowki.join(u'|'), naglowki);
  EXPECT_EQ(Wiersze(podglad), wiersze);
  EXPECT_EQ(podglad.powody.isEmpty(), powod.isEmpty());
  EXPECT_TRUE(podglad.powody.join(u'|').contains(powod)) << podglad.powody.join(u'|').toStdString();
}

TEST(Podglad, PokazujeCoZostanieOdczytaneIDlaczegoNie) {
  const StrukturaPliku kodNazwa = Towary(TypPliku::Rozdzielany, "00 01");
  Sprawdz(kodNazwa, "# komentarz\n1;a\n\n2\n",
          {u"1|a"_s, u"2|!Liczba pól w rekordzie 2 wynosi 1, deklarowana liczba pól wynosi 2."_s});
  Sprawdz(kodNazwa, "# a\n", {}, u"Plik nie zawiera żadnego rekordu"_s);
  Sprawdz(kodNazwa, "1;a\n2;b\0\n"s, {}, u"zawiera bajty zerowe"_s);
  // a refused structure shows what it does all the same
  Sprawdz(Towary(TypPliku::Rozdzielany, "00 01", ""), "1;a\n",
          {u"1;a|!Liczba pól w rekordzie 1 wynosi 1, deklarowana liczba pól wynosi 2."_s},
          u"Nie zdefiniowano separatora"_s);
  Sprawdz(Towary(TypPliku::StalaSzerokosc, "004 01"), "5901Chleb\n", {"5901|"},
          u"Nie zdefiniowano szerokości pola"_s);
  Sprawdz(Towary(TypPliku::Rozdzielany, "00 23"), "1;A\n", {"1|22 %"}, "Nie zdefiniowano opisu stawki VAT",
          "Kod kreskowy|Stawka VAT");
  Sprawdz(Towary(TypPliku::Rozdzielany, ""), "1;a\n", {}, u"Nie zdefiniowano listy pól"_s, "");
  Sprawdz(Towary(TypPliku::DBase, "00KOD 18CENA"),
          Tabela{.pola = {{"KOD", 4}, {"NAZWA", 6}}, .rekordy = {"*5901Chleb ", " 5902Mleko "}}.Bajty(),
          {"5902|"}, "W importowanym pliku brak pola: CENA", u"Kod kreskowy|Cena sprzedaży"_s);
}

TEST(Podglad, KolumnyStojaJakWPlikuAJednoPoleMaJednaKolumne) {
  StrukturaPliku struktura = Towary(TypPliku::Rozdzielany, "01 32 00 01 23");
  struktura.CBPolskieZnaki = StronaKodowa::Mazovia;
  struktura.CBNieAnalizujPierwszejLinii = true;
  struktura.opisyVat = {OpisVat(u"8"_s, u"B"_s), OpisVat(u"-1"_s, u"Z"_s)};
  const PlikProbny plik("naglowek\nS\xA2l;x;5901;morska;B\n\"Cukier\";x;5902;;Z\n");
  const PodgladPliku podglad = CzytajPodglad(struktura, plik.Sciezka());
  EXPECT_EQ(podglad.naglowki, (QStringList{"Nazwa towaru", "Kod kreskowy", "Stawka VAT"}));
  EXPECT_EQ(Wiersze(podglad), (QStringList{u"Sól morska|5901|8 %"_s, "Cukier|5902|ZW"}));
  EXPECT_EQ(podglad.powody, QStringList());
}

TEST(Podglad, UkladWlasnyMaWszystkiePolaKatalogu) {
  StrukturaPliku struktura(RodzajRekordu::Kontrahenci);
  const PlikProbny plik("naglowek\nFirma\t123" + std::string(34, '\t') + "1\t\n");
  const PodgladPliku podglad = CzytajPodglad(struktura, plik.Sciezka());
  ASSERT_EQ(podglad.naglowki.size(), PoleKontrahenta::LiczbaWartosci);
  EXPECT_EQ(podglad.naglowki.last(), u"Status Kontrahenta (aktywny/usunięty)"_s);
  ASSERT_EQ(Wiersze(podglad), QStringList{u"Firma|123"_s + QString(34, u'|') + u"1"_s});
  EXPECT_EQ(podglad.powody, QStringList());
}

TEST(Podglad, CzytaTylkoPoczatekPliku) {
  const StrukturaPliku struktura = Towary(TypPliku::Rozdzielany, "00 01");
  std::string rekordy;
  for (int i = 0; i < 100; ++i) rekordy += std::to_string(i) + ";" + std::string(1000, 'x') + "\n";
  const PodgladPliku podglad = CzytajPodglad(struktura, PlikProbny(rekordy).Sciezka());
  ASSERT_EQ(podglad.wiersze.size(), 20U);
  EXPECT_EQ(podglad.wiersze.back().wartosci[0], u"19"_s);
  EXPECT_LT(podglad.wiersze.back().wartosci[1].size(), 300);

  std::string komentarze;
  for (int i = 0; i < 20000; ++i) komentarze += "# komentarz\n";
  EXPECT_EQ(CzytajPodglad(struktura, PlikProbny(komentarze + rekordy).Sciezka()).powody,
            QStringList{u"Początek pliku nie zawiera żadnego rekordu"_s});
}

TEST(Podglad, BrakPlikuJestPowodem) {
  const StrukturaPliku struktura = Towary(TypPliku::DBase, "00KOD");
  const PodgladPliku podglad = CzytajPodglad(struktura, u"/nie/ma/mnie.dbf"_s);
  EXPECT_EQ(podglad.powody, QStringList{u"Plik /nie/ma/mnie.dbf nie istnieje"_s});
  EXPECT_EQ(podglad.naglowki, QStringList{u"Kod kreskowy"_s});
  EXPECT_TRUE(podglad.wiersze.empty());
}

}  // namespace
