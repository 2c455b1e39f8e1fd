#include <filesystem>
#include <fstream>

#include "platform/nazwa_pliku.h"
#include "platform/tozsamosc_pliku.h"
#include "platform/windows1250.h"
#include "tests/end_to_end/pliki_towarow.h"

namespace {

// Everything an import writes, without identifiers of goods and times.
constexpr std::string_view kZrzut = R"(
    select t.Kod || '|' || t.Nazwa || '|' || t.Skrot || '|' || t.TypTowaru || '|' || t.Indeks1 || '|' || t.Opis1
      || '|' || t.IleWZgrzewce || '|' || t.TermWazn || '|' || t.PrefPLU || '|' || t.Marza || '|' || t.CenaEw
      || '|' || t.CenaDet || '|' || t.CenaHurt || '|' || t.CenaOtwarta || '|' || t.Stawka || '|' || t.Aktywny
      || '|' || (select Nazwa from Asort a where a.AsId = t.AsId)
      || '|' || (select Nazwa from JM j where j.JMId = t.JMId)
      || '|' || coalesce((select k.Nazwa from Kategoria k where k.KatId = t.KatId), '-')
      || '|' || coalesce((select group_concat(d.Kod || ',' || d.Skrot || ',' || d.PrefPLU, ';')
                          from KodDod d where d.TowId = t.TowId), '-')
      || '|' || coalesce((select group_concat(p.Nazwa || '=' || w.Wartosc, ';') from TowWartosc w
                          join Parametr p on p.ParId = w.ParId where w.TowId = t.TowId), '-')
      || '|' || coalesce((select group_concat(cast(i.StanMag as varchar(30)), ';') from Istw i where i.TowId = t.TowId), '-')
      || '|' || coalesce((select k.NIP from Kontrahent k where k.KontrId = t.Producent), '-')
      || '|' || coalesce((select group_concat(k.NIP, ';') from TowDostawca d
                          join Kontrahent k on k.KontrId = d.KontrId where d.TowId = t.TowId), '-')
    from Towar t order by t.Kod)";

std::string Zrzut() {
  constexpr std::string_view kNasza = "group_concat(", kSerwera = "string_agg(";
  std::string sql(kZrzut);
  if (NaSerwerze())
    for (auto gdzie = sql.find(kNasza); gdzie != std::string::npos; gdzie = sql.find(kNasza))
      sql.replace(gdzie, kNasza.size(), kSerwera);
  return sql;
}

const std::vector<Rekord> kTowary = Rekordy(
    u"0:5901234567893~1:Żurek śląski z kiełbasą~3:0~4:10.85~6:Gęsty, źródlana "
    u"woda~10:12~12:30~14:12,5~17:7,10"
    "~18:9.99~23:8~24:Zupy próbne~25:słoik~26:(5901234567909|Żurek|7);(5901234567916||)"
    "~27:Gotowe: ostrość(2:łagodna|ostra);ile(4:1..9)~28:12,5~29:9990000126~30:(9990000126)~31:1\n"
    "0:5901234567923~1:Ćwiczenia z fizjoterapeutą~3:2~18:150~22:1~23:ZW~24:Usługi próbne~31:1\n"
    "0:5901234567930~1:Dawny łosoś~23:5~31:0\n"
    "0:123~1:Krótki, źle~23:23~31:1\n"
    "0:5901234567947~23:23~31:1\n"
    "0:5901234567954~1:Zła cena~18:tanio~23:23~31:1"_s);

constexpr std::u16string_view kPominiete =
    u"123 | Krótki, źle | Kod krótki\r\n"
    u"5901234567947 |  | Brak nazwy towaru\r\n"
    u"5901234567954 | Zła cena | tanio nie jest liczbą\r\n";

TEST(ImportCaly, CzteryUkladyDajaTeSamaBaze) {
  struct Uklad {
    TypPliku typ;
    StronaKodowa strona;
  };
  QStringList wzor;
  for (const auto& [typ, strona] :
       {Uklad{TypPliku::Zorvik, StronaKodowa::Windows}, Uklad{TypPliku::Rozdzielany, StronaKodowa::Windows},
        Uklad{TypPliku::StalaSzerokosc, StronaKodowa::Mazovia},
        Uklad{TypPliku::DBase, StronaKodowa::LatinII}}) {
    SCOPED_TRACE(static_cast<int>(typ));
    const Stanowisko s(true);
    const int bylo = s.Towarow();
    s.Zapisz(u"towary"_s, PlikTowarow(kTowary, typ, strona));
    const QStringList slowa =
        UstawieniaPliku(typ, strona) + QStringList{u"--ustaw"_s, u"ParImportStanow=1"_s};
    const Wynik wynik = s.Import(u"towary"_s, slowa);
    EXPECT_EQ(wynik.status, 0) << wynik.bledy.toStdString();
    EXPECT_EQ(wynik.Liczba(u"rekordow"_s), 6);
    EXPECT_EQ(wynik.Liczba(u"dodanych"_s), 3);
    EXPECT_EQ(wynik.Liczba(u"pominietych"_s), 3);
    EXPECT_EQ(wynik.Liczba(u"asortymentow"_s), 3);  // two of the file and "Pomocniczy"
    EXPECT_EQ(wynik.Liczba(u"kategorii"_s), 1);
    EXPECT_EQ(wynik.Liczba(u"parametrow"_s), 2);
    EXPECT_EQ(s.Towarow(), bylo + 3);
    EXPECT_EQ(s.Odczytaj(u"POMINIETE.TXT"_s).toStdString(), windows1250::ZUnicode(kPominiete));

    const QStringList zrzut = s.Zapytaj(Zrzut());
    if (wzor.isEmpty()) wzor = zrzut;
    EXPECT_EQ(zrzut, wzor);
    EXPECT_TRUE(zrzut.filter(u"5901234567893"_s).value(0).contains(u"|Żurek śląski z kiełbasą|"_s));

    const Wynik ponownie = s.Import(u"towary"_s, slowa);
    EXPECT_EQ(ponownie.Liczba(u"bezZmian"_s), 3);
    EXPECT_EQ(ponownie.Liczba(u"pominietych"_s), 6);
    EXPECT_EQ(s.Zapytaj(Zrzut()), wzor);
  }
}

// The shell makes the name: Qt could not hand it to a program.
TEST(ImportCaly, NazwaPlikuKtoraNieJestUtf8) {
  const Stanowisko s;
  const QString nazwa = u"cennik \xDCB3\xDCB9.txt"_s;
  std::ofstream(BajtyNazwy(s.Sciezka(nazwa)).toStdString()) << DuzyPlik(3);
  const auto uruchom = [&](const QString& polecenie) {
    QProcess powloka;
    powloka.setWorkingDirectory(s.Sciezka(QString()));
    powloka.start(u"/bin/sh"_s, {u"-c"_s, u"exec " ZORVIK_CLI " "_s + polecenie + u" --baza "_s +
                                              Stanowisko::Baza() + u" --pominiete ."_s});
    return Stanowisko::Zakoncz(powloka);
  };
  EXPECT_EQ(uruchom(u"import-towarow \"$(printf 'cennik \\263\\271.txt')\""_s).status, 0);
  EXPECT_EQ(s.Towarow(), 3);
  const Wynik brak = uruchom(u"import-towarow \"$(printf 'brak \\263')\""_s);
  EXPECT_EQ(brak.status, 3);
  EXPECT_TRUE(brak.bledy.contains(u" nie istnieje"_s)) << brak.bledy.toStdString();
  EXPECT_EQ(uruchom(u"eksport-towarow \"$(printf 'nowy \\263')\""_s).status, 0);
  EXPECT_GT(RozmiarPliku(s.Sciezka(u"nowy \xDCB3"_s)), 0);
  std::filesystem::remove_all(s.Sciezka(QString()).toStdString());  // Qt would leave such names behind
}

TEST(ImportCaly, ZlyPlikJestOdrzuconyZPowodem) {
  const std::string dobry = DuzyPlik(3);
  const std::string dbase = PlikTowarow(kTowary, TypPliku::DBase, StronaKodowa::Windows);
  const auto zmieniony = [&](size_t gdzie, const std::string& bajty) {
    return std::string(dbase).replace(gdzie, bajty.size(), bajty);
  };
  std::string utf16 = "\xFF\xFE";
  for (const char znak : dobry) utf16 += {znak, '\0'};
  const struct {
    const char* nazwa;
    TypPliku typ;
    std::string tresc;
    QString tekst;
  } kPliki[] = {
      {"UTF-16", TypPliku::Zorvik, utf16, u"UTF-16"_s},
      {"znacznik UTF-8", TypPliku::Zorvik, "\xEF\xBB\xBF" + dobry, u"UTF-8"_s},
      {"linia bez końca", TypPliku::Zorvik, dobry + std::string(2 << 20, 'a'), u"dłuższa niż"_s},
      {"linia bez końca", TypPliku::Rozdzielany, std::string(2 << 20, 'a'), u"dłuższa niż"_s},
      {"nagłówek długości 0", TypPliku::DBase, zmieniony(8, std::string(2, '\0')), u"Nagłówek"_s},
      {"nagłówek za plikiem", TypPliku::DBase, zmieniony(8, "\xFF\xFF"), u"Nagłówek"_s},
      {"tekst zamiast dBase", TypPliku::DBase, dobry, u"wygląda na plik w formacie programu Zorvik"_s},
      {"dBase zamiast tekstu", TypPliku::Rozdzielany, dbase, u"wygląda na plik formatu DBase III"_s},
      {"typ M", TypPliku::DBase, zmieniony(32 + 11, "M"), u" ma typ M (notatka)"_s},
  };
  const Stanowisko s;
  for (const auto& plik : kPliki) {
    SCOPED_TRACE(plik.nazwa);
    s.Zapisz(u"zly"_s, plik.tresc);
    const Wynik wynik = s.Import(u"zly"_s, UstawieniaPliku(plik.typ, StronaKodowa::Windows));
    EXPECT_EQ(wynik.status, 3);
    EXPECT_EQ(wynik.Koniec(), u"odmowa"_s);
    EXPECT_TRUE(wynik.bledy.contains(plik.tekst)) << wynik.bledy.toStdString();
    EXPECT_EQ(s.Towarow(), 0);
  }
  // Wrong numbers that do no harm: the size of the file tells how many records there are.
  s.Zapisz(u"dobry"_s, zmieniony(4, "\xFF\xFF\xFF\xFF"));
  EXPECT_EQ(
      s.Import(u"dobry"_s, UstawieniaPliku(TypPliku::DBase, StronaKodowa::Windows)).Liczba(u"rekordow"_s), 6);
}

}  // namespace
