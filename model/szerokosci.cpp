#include "model/szerokosci.h"

#include <algorithm>

#include "model/bledy.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kZaDlugi = 2040;

// Fields whose column has another name.
struct NazwaPola {
  std::string_view tabela, kolumna;
  const char16_t* nazwa;
};
constexpr NazwaPola kNazwy[] = {
    {"Asort", "Nazwa", u"Nazwa asortymentu"},
    {"JM", "Nazwa", u"Jednostka miary"},
    {"Magazyn", "Nazwa", u"Nazwa magazynu"},
    {"Kategoria", "Nazwa", u"Nazwa kategorii"},
    {"Parametr", "Nazwa", u"Nazwa parametru"},
    {"ParWartosc", "Wartosc", u"Wartość parametru"},
    {"Kontrahent", "Nazwa", u"Nazwa kontrahenta"},
    {"Kontrahent", "NaPrzelewie1", u"Na przelewie 1"},
    {"Kontrahent", "NaPrzelewie2", u"Na przelewie 2"},
    {"Kontrahent", "Skrot", u"Skrót"},
    {"Kontrahent", "Kod", u"Kod pocztowy"},
    {"Kontrahent", "EMail", u"Email"},
    {"Kontrahent", "Bank", u"Nazwa banku"},
    {"Kontrahent", "KodKarty", u"Kod karty"},
    {"Kontrahent", "NrAnalityki", u"Numer analityki"},
    {"Kontrahent", "KodKontr", u"Kod kontrahenta"},
    {"Kontrahent", "NrSeryjny", u"Numer seryjny"},
    {"Osoba", "Nazwisko", u"Osoby uprawnione"},
    {"Towar", "Nazwa", u"Nazwa towaru"},
    {"Towar", "Skrot", u"Skrót (nazwa na kasach)"},
    {"Towar", "Kod", u"Kod kreskowy"},
    {"Towar", "Opis1", u"Opis 1"},
    {"Towar", "Opis2", u"Opis 2"},
    {"Towar", "Opis3", u"Opis 3"},
    {"Towar", "Opis4", u"Opis 4"},
    {"Towar", "KodZgrzewki", u"Kod zgrzewki"},
    {"KodDod", "Kod", u"Kod dodatkowy"},
    {"KodDod", "Skrot", u"Skrót kodu dodatkowego"},
    {"Notatki", "Tekst", u"Notatka"},
};

QString Nazwa(std::string_view tabela, std::string_view kolumna) {
  const auto nazwa = std::find_if(std::begin(kNazwy), std::end(kNazwy), [&](const NazwaPola& n) {
    return n.tabela == tabela && n.kolumna == kolumna;
  });
  return nazwa == std::end(kNazwy) ? QString::fromUtf8(kolumna.data(), static_cast<qsizetype>(kolumna.size()))
                                   : QString::fromUtf16(nazwa->nazwa);
}

bool PoczatekZnaku(char bajt) {
  return (static_cast<unsigned char>(bajt) & 0xC0) != 0x80;
}

}  // namespace

QString WadaDlugosci(std::string_view utf8, int mieszczaSie) {
  // Most texts are short even in bytes.
  if (utf8.size() <= static_cast<std::size_t>(mieszczaSie)) return {};
  const auto znakow = std::count_if(utf8.begin(), utf8.end(), PoczatekZnaku);
  if (znakow <= mieszczaSie) return {};
  return u"ma %1 znaków, a mieści się ich %2"_s.arg(znakow).arg(mieszczaSie);
}

void WymagajDlugosci(const char* tabela, const char* kolumna, std::string_view utf8, int mieszczaSie) {
  if (const QString wada = WadaDlugosci(utf8, mieszczaSie); !wada.isEmpty())
    throw EVLTWDError(kZaDlugi, nullptr, u"Tekst w polu '%1' "_s.arg(Nazwa(tabela, kolumna)) + wada);
}

void WymagajDlugosci(const char* tabela, const char* kolumna, const QString& tekst, int mieszczaSie) {
  if (tekst.size() > mieszczaSie) WymagajDlugosci(tabela, kolumna, tekst.toStdString(), mieszczaSie);
}

bool ZaDlugiTekst(const EVLTWDError& blad) {
  return blad.MacCode() == kZaDlugi;
}

QString TekstDoRaportu(const EVLTWDError& blad) {
  return ZaDlugiTekst(blad) ? blad.MacDescription() : blad.MacMessage();
}
