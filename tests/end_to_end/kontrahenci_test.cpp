#include "platform/windows1250.h"
#include "tests/end_to_end/pliki_kontrahentow.h"

namespace {

std::string Rekord(const std::string& nazwaINip) {
  return nazwaINip + std::string(34, '\t') + "1\r\n";
}

TEST(ImportKontrahentow, WynikPlikPominietychIStatus) {
  const Stanowisko s;
  s.Zapisz(u"KONTR_I.txt"_s, "Nazwa\r\n# uwaga\r\n" + Rekord(windows1250::ZUnicode(u"Żółty\t12-3")) +
                                 Rekord("\t99") + Rekord("A\t1"));
  // The file is the one of the settings.
  const QStringList slowa =
      QStringList{u"import-kontrahentow"_s, u"--baza"_s, Stanowisko::Baza(), u"--pominiete"_s, u"."_s} +
      kDodajIPopraw + QStringList{u"--ustaw"_s, u"ParUstawOdbiorce=1"_s};
  const Wynik wynik = s.Uruchom(slowa + QStringList{u"--json"_s});
  EXPECT_EQ(wynik.status, 0) << wynik.bledy.toStdString();
  EXPECT_EQ(wynik.Koniec(), u"zakonczono"_s);
  QStringList liczniki;
  for (const QString& klucz : wynik.Json().keys())
    if (wynik.Json()[klucz].isDouble() && klucz != u"czasSekund")
      liczniki << klucz + u'=' + QString::number(wynik.Liczba(klucz));
  EXPECT_EQ(liczniki.join(u' '), u"bezZmian=0 dodanych=2 pominietych=1 poprawionych=0 rekordow=3"_s);
  EXPECT_EQ(s.Odczytaj(u"POMINIECI.TXT"_s), "99 |  | Brak nazwy kontrahenta\r\n");
  EXPECT_EQ(s.Zapytaj("select Nazwa from Kontrahent"), (QStringList{u"Żółty"_s, u"A"_s}));
  // Unchanged ones are not skipped ones.
  EXPECT_TRUE(s.Uruchom(slowa).wyjscie.contains(
      u"Rekordów: 3, dodanych: 0, poprawionych: 0, pominiętych: 1, bez zmian: 2."_s));
}

}  // namespace
