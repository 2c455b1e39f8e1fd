#include "platform/windows1250.h"
#include "tests/end_to_end/pliki_kontrahentow.h"

namespace {

std::string Rekord(const std::string& nazwaINip) {
  return nazwaINip + std::string(34, '\t') + "1\r\n";
}

TEST(ImportKontrahentow, WynikPlikPominietychIStatus) {
  const Stanowisko s;
  s.Zapisz(u"KONTR_I.txt"_s, "Nazwa\r\n# uwaga\r\n" + Rekord(windows1250::ZUnicode(u"Żółty\t12-3")) +
                                 Rekord("Bez NIPu\t brak") + Rekord("\t99") + Rekord("A\t1\t"));
  const QString typ = u"ParUstawOdbiorce=1"_s;
  struct {
    QStringList slowa;
    const char* liczniki;  // added, changed, skipped, unchanged
    std::u16string_view pominieci;
  } const przypadki[] = {
      {{},
       "0 0 4 0",
       u"12-3 | Żółty | Kontrahenta z tym NIP-em nie ma w bazie\r\nbrak | Bez NIPu | Brak NIPu "
       u"kontrahenta\r\n"
       u"99 |  | Brak nazwy kontrahenta\r\n1 | A | Kontrahenta z tym NIP-em nie ma w bazie\r\n"},
      {kDodajIPopraw + QStringList{u"--ustaw"_s, typ}, "2 0 2 0",
       u"brak | Bez NIPu | Brak NIPu kontrahenta\r\n99 |  | Brak nazwy kontrahenta\r\n"},
      {kDodajIPopraw + QStringList{u"--ustaw"_s, typ}, "0 0 2 2",
       u"brak | Bez NIPu | Brak NIPu kontrahenta\r\n99 |  | Brak nazwy kontrahenta\r\n"},
  };
  for (const auto& p : przypadki) {
    // The file is the one of the settings.
    QStringList slowa = s.SlowaImportu(u""_s, p.slowa, u"import-kontrahentow"_s);
    slowa.removeAt(1);
    const Wynik wynik = s.Uruchom(slowa);
    EXPECT_EQ(wynik.status, 0) << wynik.bledy.toStdString();
    EXPECT_EQ(wynik.Koniec(), u"zakonczono"_s);
    QStringList liczniki;
    for (const QString& klucz : {u"dodanych"_s, u"poprawionych"_s, u"pominietych"_s, u"bezZmian"_s})
      liczniki << QString::number(wynik.Liczba(klucz));
    EXPECT_EQ(liczniki.join(u' '), QString::fromUtf8(p.liczniki));
    EXPECT_EQ(wynik.Liczba(u"rekordow"_s), 4);
    EXPECT_EQ(
        wynik.Json().keys().join(u' '),
        u"bezZmian czasSekund dodanych komunikaty koniec operacja plikPominietych pominietych poprawionych "
        "rekordow"_s);
    EXPECT_EQ(s.Odczytaj(u"POMINIECI.TXT"_s).toStdString(), windows1250::ZUnicode(p.pominieci));
  }
  const Wynik dlaLudzi =
      s.Uruchom({u"import-kontrahentow"_s, u"--baza"_s, u"baza.db"_s, u"--pominiete"_s, u"."_s});
  EXPECT_TRUE(dlaLudzi.wyjscie.contains(
      u"Rekordów: 4, dodanych: 0, poprawionych: 0, pominiętych: 4, bez zmian: 0."_s))
      << dlaLudzi.wyjscie.toStdString();
}

}  // namespace
