#include <gtest/gtest.h>

#include "platform/baza/polaczenie.h"
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
  const PodgladPliku podglad = CzytajPodglad(struktura, PlikProbny(tresc).Sciezka(), {});
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
  const PodgladPliku podglad = CzytajPodglad(struktura, plik.Sciezka(), {});
  EXPECT_EQ(podglad.naglowki, (QStringList{"Nazwa towaru", "Kod kreskowy", "Stawka VAT"}));
  EXPECT_EQ(Wiersze(podglad), (QStringList{u"Sól morska|5901|8 %"_s, "Cukier|5902|ZW"}));
  EXPECT_EQ(podglad.powody, QStringList());
}

TEST(Podglad, UkladWlasnyMaWszystkiePolaKatalogu) {
  StrukturaPliku struktura(RodzajRekordu::Kontrahenci);
  const PlikProbny plik("naglowek\nFirma\t123" + std::string(34, '\t') + "1\t\n");
  const PodgladPliku podglad = CzytajPodglad(struktura, plik.Sciezka(), {});
  ASSERT_EQ(podglad.naglowki.size(), PoleKontrahenta::LiczbaWartosci);
  EXPECT_EQ(podglad.naglowki.last(), u"Status Kontrahenta (aktywny/usunięty)"_s);
  ASSERT_EQ(Wiersze(podglad), QStringList{u"Firma|123"_s + QString(34, u'|') + u"1"_s});
  EXPECT_EQ(podglad.powody, QStringList());
}

TEST(Podglad, CzytaTylkoPoczatekPliku) {
  const StrukturaPliku struktura = Towary(TypPliku::Rozdzielany, "00 01");
  std::string rekordy;
  for (int i = 0; i < 100; ++i) rekordy += std::to_string(i) + ";" + std::string(1000, 'x') + "\n";
  const PodgladPliku podglad = CzytajPodglad(struktura, PlikProbny(rekordy).Sciezka(), {});
  ASSERT_EQ(podglad.wiersze.size(), 20U);
  EXPECT_EQ(podglad.wiersze.back().wartosci[0], u"19"_s);
  EXPECT_LT(podglad.wiersze.back().wartosci[1].size(), 300);

  std::string komentarze;
  for (int i = 0; i < 20000; ++i) komentarze += "# komentarz\n";
  EXPECT_EQ(CzytajPodglad(struktura, PlikProbny(komentarze + rekordy).Sciezka(), {}).powody,
            QStringList{u"Początek pliku nie zawiera żadnego rekordu"_s});
}

TEST(Podglad, BrakPlikuJestPowodem) {
  const StrukturaPliku struktura = Towary(TypPliku::DBase, "00KOD");
  const PodgladPliku podglad = CzytajPodglad(struktura, u"/nie/ma/mnie.dbf"_s, {});
  EXPECT_EQ(podglad.powody, QStringList{u"Plik /nie/ma/mnie.dbf nie istnieje"_s});
  EXPECT_EQ(podglad.naglowki, QStringList{u"Kod kreskowy"_s});
  EXPECT_TRUE(podglad.wiersze.empty());
}

// Marks of the cells, "row.column kind", of lines with the column "-"; then the notices below.
QStringList Znaki(const StrukturaPliku& struktura, const std::string& tresc, qsizetype* uwag = nullptr) {
  const PodgladPliku podglad = CzytajPodglad(struktura, PlikProbny(tresc).Sciezka(), {});
  QStringList znaki;
  for (std::size_t w = 0; w < podglad.wiersze.size(); ++w) {
    const PodgladPliku::Wiersz& wiersz = podglad.wiersze[w];
    if (!wiersz.wLinii.isEmpty()) znaki << u"%1.- %2"_s.arg(w + 1).arg(wiersz.wLinii.section(u' ', 0, 1));
    for (int k = 0; k < wiersz.zauwazone.size(); ++k)
      if (!wiersz.zauwazone[k].isEmpty())
        znaki << u"%1.%2 %3"_s.arg(w + 1).arg(k).arg(wiersz.zauwazone[k].section(u' ', 0, 1));
  }
  if (uwag) *uwag = podglad.uwagi.size();
  return znaki;
}

TEST(Podglad, ZnaczyToCoPrzebiegPowieWUwagach) {
  qsizetype uwag = 0;
  StrukturaPliku towary = Towary(TypPliku::Rozdzielany, "00 01 23 31");
  towary.opisyVat = {OpisVat(u"23"_s, u"A"_s)};
  EXPECT_EQ(Znaki(towary, "1;a;A;1;\n2;b;5%;1;x\n3;\xBE\xA2\x88\x86;A;\"N\"\n4;b;A;1\n", &uwag),
            (QStringList{u"2.- Za ostatnim"_s, u"2.2 Tekst „5%”"_s, u"3.1 Większość znaków"_s,
                         u"3.3 Wartość pola"_s}));
  EXPECT_EQ(uwag, 4);
  const StrukturaPliku kontrahenci =
      Struktura(RodzajRekordu::Kontrahenci, TypPliku::Rozdzielany, {"00", "32"});
  EXPECT_EQ(Znaki(kontrahenci, "A;1.12.2030\nB;2030-12-01\nC;\n", &uwag), QStringList{"2.1 Pole „Termin"});
  EXPECT_EQ(uwag, 1);
  std::string tabela = Tabela{.pola = {{"KOD", 4}, {"STAN", 1}}, .rekordy = {" 5901T", " 5902 "}}.Bajty();
  tabela[2 * 32 + 11] = 'L';
  EXPECT_EQ(Znaki(Towary(TypPliku::DBase, "00KOD 31STAN"), tabela, &uwag),
            (QStringList{u"1.1 Kolumna STAN"_s, u"2.1 Kolumna STAN"_s}));
  EXPECT_EQ(uwag, 2);  // the count in the header as well
}

}  // namespace
