#include "app/operacje.h"

#include <QFileInfo>

#include "app/argumenty.h"
#include "app/postep_terminala.h"
#include "app/przerwanie.h"
#include "app/srodowisko.h"
#include "app/terminal.h"
#include "contractors/eksport_kontrahentow.h"
#include "contractors/import_kontrahentow.h"
#include "goods/eksport_towarow.h"
#include "goods/import_towarow.h"
#include "model/bufor_towarow.h"
#include "model/kontekst.h"
#include "platform/liczby.h"
#include "run/operator.h"
#include "run/przebieg.h"
#include "ustawienia/kontrola_struktury.h"

using namespace Qt::Literals::StringLiterals;

namespace {

WynikPrzebiegu UruchomImportTowarow(const ParametryPrzebiegu& parametry, Ustawienia& ustawienia) {
  TVLTBuforTowarow bufor;
  return ImportujTowary(parametry, ustawienia.importTow, bufor);
}

WynikPrzebiegu UruchomEksportTowarow(const ParametryPrzebiegu& parametry, Ustawienia& ustawienia) {
  return EksportujTowary(parametry, ustawienia.eksportTow);
}

WynikPrzebiegu UruchomImportKontrahentow(const ParametryPrzebiegu& parametry, Ustawienia& ustawienia) {
  return ImportujKontrahentow(parametry, ustawienia.importKontr);
}

WynikPrzebiegu UruchomEksportKontrahentow(const ParametryPrzebiegu& parametry, Ustawienia& ustawienia) {
  return EksportujKontrahentow(parametry, ustawienia.eksportKontr);
}

constexpr PozycjaJson kLicznikiEksportu[] = {{u"rekordow", Licznik::Rekordy}};

constexpr PozycjaJson kLicznikiKontrahentow[] = {
    {u"rekordow", Licznik::Rekordy},        {u"dodanych", Licznik::Dodane},
    {u"poprawionych", Licznik::Poprawione}, {u"pominietych", Licznik::Pominiete},
    {u"bezZmian", Licznik::BezZmian},
};

constexpr PozycjaJson kLicznikiTowarow[] = {
    {u"rekordow", Licznik::Rekordy},
    {u"dodanych", Licznik::Dodane},
    {u"poprawionych", Licznik::Poprawione},
    {u"pominietych", Licznik::Pominiete},
    {u"bezZmian", Licznik::BezZmian},
    {u"asortymentow", Licznik::Asortymenty},
    {u"jednostek", Licznik::Jednostki},
    {u"stawek", Licznik::Stawki},
    {u"kategorii", Licznik::Kategorie},
    {u"parametrow", Licznik::Parametry},
    {u"formatowKodowWazonych", Licznik::FormatyKodowWazonych},
};

const Operacja kOperacje[] = {
    {u"import-towarow", u"importuje towary z pliku do bazy",
     u"Bez nazwy pliku importuje plik z ustawienia ParNazwaPlikuImportuTow.", u"Import towarów",
     Kierunek::Import, &Ustawienia::plikImportuTow, &Ustawienia::strukturaTow, kLicznikiTowarow,
     UruchomImportTowarow},
    {u"eksport-towarow", u"eksportuje wszystkie towary z bazy do pliku",
     u"Bez nazwy pliku eksportuje do pliku z ustawienia ParNazwaPlikuEksportuTow.\n"
     u"Istniejący plik nadpisuje.",
     u"Eksport towarów", Kierunek::Eksport, &Ustawienia::plikEksportuTow, &Ustawienia::strukturaTow,
     kLicznikiEksportu, UruchomEksportTowarow},
    {u"import-kontrahentow", u"importuje kontrahentów z pliku do bazy",
     u"Bez nazwy pliku importuje plik z ustawienia ParNazwaPlikuImportuKontr.\n"
     u"Dodaje nowych, gdy ParNowyKontr=1, poprawia istniejących, gdy ParAktualKontr=1.",
     u"Import kontrahentów", Kierunek::Import, &Ustawienia::plikImportuKontr, &Ustawienia::strukturaKontr,
     kLicznikiKontrahentow, UruchomImportKontrahentow, false},
    {u"eksport-kontrahentow", u"eksportuje wybranych kontrahentów z bazy do pliku",
     u"Bez nazwy pliku eksportuje do pliku z ustawienia ParNazwaPlikuEksportuKontr.\n"
     u"Istniejący plik nadpisuje. Kogo wysłać, mówią ustawienia od ParGdyOdbiorca\n"
     u"do ParGdyNieZakladPrChr; dopóki są wyłączone, plik ma tylko nagłówek.",
     u"Eksport kontrahentów", Kierunek::Eksport, &Ustawienia::plikEksportuKontr, &Ustawienia::strukturaKontr,
     kLicznikiEksportu, UruchomEksportKontrahentow},
};

// The run, from the settings to its result; refused when it could not begin.
WynikPrzebiegu Przeprowadz(const Operacja& operacja, const Argumenty& argumenty, PostepTerminala& postep) {
  const PokazKomunikat pokaz = [&](const Komunikat& k) { postep.Pokaz(k.naglowek, k.tekst); };
  Srodowisko srodowisko;
  if (!Przygotuj(argumenty, PotrzebaBazy::Konieczna, pokaz, srodowisko)) return {};
  Ustawienia& ustawienia = srodowisko.ustawienia;
  const StrukturaPliku& struktura = ustawienia.*operacja.struktura;
  const auto odmowa = operacja.kierunek == Kierunek::Import ? SprawdzStrukture(struktura) : std::nullopt;
  if (odmowa) {
    pokaz(*odmowa);
    return {};
  }

  OperatorNieobecny oper(postep, argumenty.liczbaPol);
  KontekstSesji sesja{srodowisko.baza, srodowisko.parametry};
  return operacja.uruchom(
      {.sesja = sesja,
       .struktura = struktura,
       .plik = argumenty.plik.value_or(ustawienia.*operacja.plik),
       .postep = postep,
       .oper = oper,
       .stop = przerwanie::Zazadane(),
       .separatorDziesietny = argumenty.separatorDziesietny.value_or(liczby::SeparatorSystemu()),
       .katalogPominietych = argumenty.pominiete.value_or(QString())},
      ustawienia);
}

struct OpisKonca {
  std::u16string_view nazwa;  // value of "koniec" in the result
  std::u16string_view dlaLudzi;
  StatusWyjscia status;
};

// In the order of KoniecPrzebiegu.
constexpr OpisKonca kKonce[] = {
    {u"zakonczono", u"zakończono", StatusWyjscia::Zakonczono},
    {u"przerwano", u"przerwano", StatusWyjscia::Przerwano},
    {u"blad", u"zakończono z powodu błędu", StatusWyjscia::Blad},
    {u"odmowa", u"nie rozpoczęto", StatusWyjscia::Odmowa},
};

QString Podsumowanie(const Operacja& operacja, const OpisKonca& koniec, const WynikPrzebiegu& wynik) {
  QString tekst = u"%1: %2"_s.arg(Napis(operacja.tytul), Napis(koniec.dlaLudzi));
  if (wynik.koniec == KoniecPrzebiegu::Odmowa) return tekst + u'\n';
  const auto ile = [&](Licznik licznik) { return wynik.liczniki[licznik]; };
  tekst += u" po %1 s. Rekordów: %2"_s.arg(QString::number(wynik.sekund, 'f', 1).replace(u'.', u','))
               .arg(ile(Licznik::Rekordy));
  if (operacja.kierunek == Kierunek::Eksport) return tekst + u".\n"_s;
  tekst += (operacja.bezZmianWsrodPominietych
                ? u", dodanych: %1, poprawionych: %2, pominiętych: %3 (w tym bez zmian: %4).\n"_s
                : u", dodanych: %1, poprawionych: %2, pominiętych: %3, bez zmian: %4.\n"_s)
               .arg(ile(Licznik::Dodane))
               .arg(ile(Licznik::Poprawione))
               .arg(ile(Licznik::Pominiete))
               .arg(ile(Licznik::BezZmian));
  if (QFileInfo(wynik.plikPominietych).size() > 0)
    tekst += u"Pominięte rekordy: %1\n"_s.arg(wynik.plikPominietych);
  return tekst;
}

}  // namespace

std::span<const Operacja> TabelaOperacji() {
  return kOperacje;
}

StatusWyjscia WykonajOperacje(const Operacja& operacja, const Argumenty& argumenty) {
  PostepTerminala postep;
  const WynikPrzebiegu wynik = Przeprowadz(operacja, argumenty, postep);
  const OpisKonca& koniec = kKonce[static_cast<std::size_t>(wynik.koniec)];
  if (argumenty.json)
    terminal::WypiszBajty(
        WynikJson(operacja.nazwa, koniec.nazwa, operacja.liczniki, wynik, postep.Pokazane()));
  else
    terminal::Wypisz(Podsumowanie(operacja, koniec, wynik));
  return koniec.status;
}
