#include "database/kontrola_bazy.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <vector>

#include "database/schemat.h"
#include "platform/baza/dialekt.h"
#include "platform/baza/sesja.h"
#include "platform/baza/transakcja.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Words of a server's type by which a column of the schema's kind is known.
struct Rodzaj {
  std::string_view znacznik;
  const char16_t* nazwa;
  QStringList slowa;
};
const Rodzaj kRodzaje[] = {
    {"{klucz}", u"liczba całkowita", {u"int"_s, u"serial"_s}},
    {"{calk}", u"liczba całkowita", {u"int"_s, u"bit"_s}},
    {"{dzies}",
     u"liczba dziesiętna",
     {u"double"_s, u"real"_s, u"float"_s, u"numeric"_s, u"decimal"_s, u"money"_s}},
    {"{tekst}", u"tekst", {u"char"_s, u"text"_s}},
    {"{dlugi}", u"tekst", {u"char"_s, u"text"_s}},
    {"{czas}", u"data i czas", {u"time"_s, u"text"_s}},
};

struct Kolumna {
  QString nazwa, typ;
  int dlugosc;  // of a bounded text
};
using Tabele = std::map<QString, std::vector<Kolumna>>;  // names in small letters

QString Napis(const std::string& tekst) {
  return QString::fromStdString(tekst);
}

Tabele WczytajTabele(TVLTBazaDanych& baza) {
  Tabele tabele;
  for (auto odczyt = baza.Otworz(baza.Jezyk().KolumnyBazy(),
                                 {TypPola::Tekst, TypPola::Tekst, TypPola::Tekst, TypPola::Calkowite});
       odczyt.Nastepny();)
    tabele[odczyt[0].AsString().toLower()].push_back({odczyt[1].AsString().toLower(),
                                                      odczyt[2].AsString().toLower(),
                                                      static_cast<int>(odczyt[3].AsInteger())});
  return tabele;
}

auto ZnajdzKolumne(const std::vector<Kolumna>& kolumny, const std::string& nazwa) {
  return std::find_if(kolumny.begin(), kolumny.end(),
                      [&](const Kolumna& k) { return k.nazwa == Napis(nazwa).toLower(); });
}

// The one column that the program can do without; it came later than the others.
constexpr char16_t kKolejnoscOsob[] = u"Osoba.OsId";

QString SkutekBrakuKolejnosci(const Dialekt& jezyk, bool serwer) {
  const QString skutek =
      serwer
          ? u"ale poprawianie danych może tę kolejność zmieniać. Dodaje ją polecenie: alter table Osoba add OsId "_s +
                Napis(jezyk.TypAutoKlucz())
          : u"bo kolejność wyznacza miejsce wiersza w pliku; mają ją nowo zakładane bazy"_s;
  return u", która przechowuje kolejność osób uprawnionych do odbioru faktur. Import i eksport działają bez niej, "_s +
         skutek;
}

void SprawdzKolumne(const KolumnaSchematu& wzor, const std::vector<Kolumna>& kolumny, const Dialekt& jezyk,
                    bool serwer, QStringList& braki) {
  const QString nazwa = Napis(wzor.tabela) + u'.' + Napis(wzor.nazwa);
  const auto kolumna = ZnajdzKolumne(kolumny, wzor.nazwa);
  if (kolumna == kolumny.end()) {
    braki << u"Brak kolumny %1"_s.arg(nazwa) +
                 (nazwa == kKolejnoscOsob ? SkutekBrakuKolejnosci(jezyk, serwer) : QString());
    return;
  }
  for (const Rodzaj& rodzaj : kRodzaje) {
    if (rodzaj.znacznik != wzor.znacznik) continue;
    const bool zgodny = std::any_of(rodzaj.slowa.begin(), rodzaj.slowa.end(),
                                    [&](const QString& slowo) { return kolumna->typ.contains(slowo); });
    if (!zgodny)
      braki << u"Kolumna %1 ma typ %2, a powinna to być %3"_s.arg(nazwa, kolumna->typ,
                                                                  QString::fromUtf16(rodzaj.nazwa));
    else if (serwer && QString::fromUtf16(rodzaj.nazwa) == u"tekst"_s && kolumna->dlugosc <= 0)
      braki << u"Kolumna %1 jest tekstem bez ograniczonej długości: programy łączące się przez ODBC obcinają "
               u"takie "
               u"teksty i mogą zapisać obcięte"_s.arg(nazwa);
  }
}

// Records are read with all columns of their table, in the table's order.
void SprawdzKolejnosc(const std::string& tabela, const std::vector<Kolumna>& kolumny, QStringList& braki) {
  std::size_t ktora = 0;
  for (const KolumnaSchematu& wzor : KolumnySchematu()) {
    if (wzor.tabela != tabela) continue;
    if (ktora >= kolumny.size() || kolumny[ktora].nazwa != Napis(wzor.nazwa).toLower()) {
      braki
          << u"Tabela %1 ma kolumny w innej kolejności, niż czyta je program: %2 powinna być kolumną nr %3"_s
                 .arg(Napis(tabela), Napis(wzor.nazwa))
                 .arg(ktora + 1);
      return;
    }
    ++ktora;
  }
  if (ktora != kolumny.size()) braki << u"Tabela %1 ma kolumny, których program nie zna"_s.arg(Napis(tabela));
}

QStringList Pary(TVLTBazaDanych& baza, const std::string& select) {
  QStringList pary;
  for (auto odczyt = baza.Otworz(select, {TypPola::Tekst, TypPola::Tekst}); odczyt.Nastepny();)
    pary << (odczyt[0].AsString() + u'.' + odczyt[1].AsString()).toLower();
  return pary;
}

void SprawdzIndeksy(TVLTBazaDanych& baza, const Tabele& tabele, QStringList& braki) {
  const QStringList indeksy = Pary(baza, baza.Jezyk().IndeksyBazy());
  for (const auto& [tabela, kolumna] : IndeksySchematu()) {
    const QString nazwa = Napis(tabela) + u'.' + Napis(kolumna);
    const auto jest = tabele.find(Napis(tabela).toLower());
    const bool jestKolumna =
        jest != tabele.end() && ZnajdzKolumne(jest->second, kolumna) != jest->second.end();
    if (jestKolumna && !indeksy.contains(nazwa.toLower()))
      braki << u"Brak indeksu zaczynającego się od kolumny %1: praca będzie bardzo wolna"_s.arg(nazwa);
  }
}

void SprawdzWyzwalacze(TVLTBazaDanych& baza, const Tabele& tabele, QStringList& braki) {
  const QStringList wyzwalacze = Pary(baza, baza.Jezyk().WyzwalaczeBazy());
  for (const auto& [tabela, nazwa] : WyzwalaczeSchematu())
    if (tabele.count(Napis(tabela).toLower()) > 0 &&
        !wyzwalacze.contains((Napis(tabela) + u'.' + Napis(nazwa)).toLower()))
      braki
          << u"Brak działającego wyzwalacza %1 w tabeli %2: nowe towary i magazyny nie dostaną wierszy stanów"_s
                 .arg(Napis(nazwa), Napis(tabela));
}

void SprawdzAutoKlucz(TVLTBazaDanych& baza, const KolumnaSchematu& klucz, QStringList& braki) {
  const std::string pytanie = baza.Jezyk().StanAutoKlucza(klucz.tabela, klucz.nazwa);
  if (pytanie.empty()) return;
  const QString nazwa = Napis(klucz.tabela) + u'.' + Napis(klucz.nazwa);
  const auto stan = [&] {
    try {
      JednostkaZapisu jednostka(baza);
      auto odczyt = baza.Otworz(pytanie, {TypPola::Calkowite});
      return odczyt.Nastepny() ? static_cast<StanAutoKlucza>(odczyt[0].AsInteger()) : StanAutoKlucza::Brak;
    } catch (const EBladBazy&) {
      return StanAutoKlucza::Dobry;  // rights to the table itself are told of anyway
    }
  }();
  if (stan == StanAutoKlucza::Brak)
    braki << u"Kolumna %1 nie ma sekwencji, z której program bierze numery nowych wierszy"_s.arg(nazwa);
  else if (stan == StanAutoKlucza::BezPrawa)
    braki << u"Brak prawa używania sekwencji kolumny %1: nie da się dopisać wiersza"_s.arg(nazwa);
  else if (stan == StanAutoKlucza::WTyleZaTabela)
    braki << u"Sekwencja kolumny %1 jest w tyle za numerami w tabeli: nowe wiersze dostałyby zajęte numery"_s
                 .arg(nazwa);
}

// "varchar(1000)": the number; 0 for an unbounded type.
int Szerokosc(const std::string& typ) {
  const auto nawias = typ.find('(');
  return nawias == std::string::npos ? 0 : std::atoi(typ.c_str() + nawias + 1);
}

void SprawdzSzerokosc(TVLTBazaDanych& baza, const KolumnaSchematu& wzor, const std::vector<Kolumna>& kolumny,
                      QStringList& braki) {
  const auto kolumna = ZnajdzKolumne(kolumny, wzor.nazwa);
  if (kolumna == kolumny.end() || kolumna->dlugosc <= 0) return;
  if (const int szerokosc = Szerokosc(TypKolumny(wzor, baza.Jezyk())); kolumna->dlugosc < szerokosc)
    braki << u"Kolumna %1.%2 mieści %3 znaków, a powinna %4: dłuższy tekst zostanie odrzucony"_s
                 .arg(Napis(wzor.tabela), Napis(wzor.nazwa))
                 .arg(kolumna->dlugosc)
                 .arg(szerokosc);
}

// Statements that touch no row are allowed or refused like any other.
void SprawdzPrawa(TVLTBazaDanych& baza, const PrawaTabeli& prawa, QStringList& braki) {
  const std::string tabela = prawa.tabela;
  const auto sprobuj = [&](const char16_t* czego, const auto& praca) {
    try {
      JednostkaZapisu jednostka(baza);
      praca();
    } catch (const EBladBazy& blad) {
      braki << u"Brak prawa %1 w tabeli %2: %3"_s.arg(QString::fromUtf16(czego), Napis(tabela),
                                                      blad.MacMessage());
    }
  };
  sprobuj(u"odczytu", [&] {
    baza.Otworz("select count(*) from " + tabela + " where 1 = 0", {TypPola::Calkowite}).Nastepny();
  });
  const std::string kolumna = prawa.kolumna;
  const struct {
    bool potrzebne;
    const char16_t* czego;
    std::string sql;
  } proby[] = {
      {prawa.dopisuje, u"dopisywania",
       "insert into " + tabela + " (" + kolumna + ") select " + kolumna + " from " + tabela + " where 1 = 0"},
      {prawa.poprawia, u"poprawiania",
       "update " + tabela + " set " + kolumna + " = " + kolumna + " where 1 = 0"},
      {prawa.usuwa, u"usuwania", "delete from " + tabela + " where 1 = 0"},
  };
  for (const auto& proba : proby)
    if (proba.potrzebne) sprobuj(proba.czego, [&] { baza.ExecSQL(proba.sql); });
}

}  // namespace

std::optional<QString> BladKodowania(TVLTBazaDanych& baza) {
  const std::string pytanie = baza.Jezyk().KodowanieBazy();
  if (pytanie.empty()) return std::nullopt;
  auto odczyt = baza.Otworz(pytanie, {TypPola::Tekst});
  const QString kodowanie = odczyt.Nastepny() ? odczyt[0].AsString() : QString();
  if (kodowanie.compare(u"UTF8"_s, Qt::CaseInsensitive) == 0) return std::nullopt;
  return u"Baza danych koduje teksty jako %1, a nie UTF8: innych znaków nie da się w niej zapisać"_s.arg(
      kodowanie);
}

QStringList SprawdzBaze(TVLTBazaDanych& baza) {
  QStringList braki;
  const bool serwer = baza.Parametry().rodzaj == ParametryPolaczenia::Rodzaj::Odbc;
  if (const auto blad = BladKodowania(baza)) braki << *blad;
  const Tabele tabele = WczytajTabele(baza);
  for (const PrawaTabeli& prawa : PrawaTabel()) {
    const auto tabela = tabele.find(Napis(prawa.tabela).toLower());
    if (tabela == tabele.end()) {
      braki << u"Brak tabeli %1"_s.arg(Napis(prawa.tabela));
      continue;
    }
    const qsizetype dotad = braki.size();
    for (const KolumnaSchematu& wzor : KolumnySchematu())
      if (wzor.tabela == prawa.tabela) SprawdzKolumne(wzor, tabela->second, baza.Jezyk(), serwer, braki);
    for (const KolumnaSchematu& wzor : KolumnySchematu())
      if (wzor.tabela == prawa.tabela && ZnajdzKolumne(tabela->second, wzor.nazwa) != tabela->second.end()) {
        SprawdzSzerokosc(baza, wzor, tabela->second, braki);
        if (wzor.znacznik == "{klucz}" && prawa.dopisuje) SprawdzAutoKlucz(baza, wzor, braki);
      }
    if (prawa.czytanaWcalosci && braki.size() == dotad) SprawdzKolejnosc(prawa.tabela, tabela->second, braki);
    if (ZnajdzKolumne(tabela->second, prawa.kolumna) != tabela->second.end())
      SprawdzPrawa(baza, prawa, braki);
  }
  SprawdzIndeksy(baza, tabele, braki);
  SprawdzWyzwalacze(baza, tabele, braki);
  return braki;
}
