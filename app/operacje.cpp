#include "app/operacje.h"

#include "app/argumenty.h"
#include "app/postep_terminala.h"
#include "app/przerwanie.h"
#include "app/srodowisko.h"
#include "app/terminal.h"
#include "model/bufor_towarow.h"
#include "model/kontekst.h"
#include "platform/liczby.h"
#include "platform/tozsamosc_pliku.h"
#include "run/operator.h"
#include "run/przebieg.h"
#include "ustawienia/kontrola_struktury.h"
#include "ustawienia/rodzaje_przebiegow.h"

using namespace Qt::Literals::StringLiterals;

namespace {

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
    {Rodzaj(KtoryPrzebieg::ImportTowarow), u"importuje towary z pliku do bazy",
     u"Bez nazwy pliku importuje plik z ustawienia ParNazwaPlikuImportuTow.", kLicznikiTowarow},
    {Rodzaj(KtoryPrzebieg::EksportTowarow), u"eksportuje wszystkie towary z bazy do pliku",
     u"Bez nazwy pliku eksportuje do pliku z ustawienia ParNazwaPlikuEksportuTow.\n"
     u"Istniejący plik nadpisuje.",
     kLicznikiEksportu},
    {Rodzaj(KtoryPrzebieg::ImportKontrahentow), u"importuje kontrahentów z pliku do bazy",
     u"Bez nazwy pliku importuje plik z ustawienia ParNazwaPlikuImportuKontr.\n"
     u"Dodaje nowych, gdy ParNowyKontr=1, poprawia istniejących, gdy ParAktualKontr=1.",
     kLicznikiKontrahentow, false},
    {Rodzaj(KtoryPrzebieg::EksportKontrahentow), u"eksportuje wybranych kontrahentów z bazy do pliku",
     u"Bez nazwy pliku eksportuje do pliku z ustawienia ParNazwaPlikuEksportuKontr.\n"
     u"Istniejący plik nadpisuje. Kogo wysłać, mówią ustawienia od ParGdyOdbiorca\n"
     u"do ParGdyNieZakladPrChr; dopóki są wyłączone, plik ma tylko nagłówek.",
     kLicznikiEksportu},
};

// The run, from the settings to its result; refused when it could not begin.
WynikPrzebiegu Przeprowadz(const Operacja& operacja, const Argumenty& argumenty, PostepTerminala& postep) {
  const PokazKomunikat pokaz = [&](const Komunikat& k) { postep.Pokaz(k.naglowek, k.tekst); };
  Srodowisko srodowisko;
  if (!Przygotuj(argumenty, PotrzebaBazy::Konieczna, pokaz, srodowisko)) return {};
  Ustawienia& ustawienia = srodowisko.ustawienia;
  const RodzajPrzebiegu& rodzaj = operacja.rodzaj;
  const StrukturaPliku& struktura = ustawienia.*rodzaj.struktura;
  const auto odmowa = rodzaj.kierunek == Kierunek::Import ? SprawdzStrukture(struktura) : std::nullopt;
  if (odmowa) {
    pokaz(*odmowa);
    return {};
  }

  OperatorNieobecny oper(postep, argumenty.liczbaPol);
  KontekstSesji sesja{srodowisko.baza, srodowisko.parametry};
  TVLTBuforTowarow bufor;
  return rodzaj.wykonaj(
      {.sesja = sesja,
       .struktura = struktura,
       .plik = argumenty.plik.value_or(ustawienia.*rodzaj.plik),
       .postep = postep,
       .oper = oper,
       .stop = przerwanie::Zazadane(),
       .separatorDziesietny = argumenty.separatorDziesietny.value_or(liczby::SeparatorSystemu()),
       .katalogPominietych = argumenty.pominiete.value_or(QString())},
      ustawienia, bufor);
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
  QString tekst = u"%1: %2"_s.arg(Napis(operacja.rodzaj.tytul), Napis(koniec.dlaLudzi));
  if (wynik.koniec == KoniecPrzebiegu::Odmowa) return tekst + u'\n';
  const auto ile = [&](Licznik licznik) { return wynik.liczniki[licznik]; };
  tekst += u" po %1 s. Rekordów: %2"_s.arg(QString::number(wynik.sekund, 'f', 1).replace(u'.', u','))
               .arg(ile(Licznik::Rekordy));
  if (operacja.rodzaj.kierunek == Kierunek::Eksport) return tekst + u".\n"_s;
  tekst += (operacja.bezZmianWsrodPominietych
                ? u", dodanych: %1, poprawionych: %2, pominiętych: %3 (w tym bez zmian: %4).\n"_s
                : u", dodanych: %1, poprawionych: %2, pominiętych: %3, bez zmian: %4.\n"_s)
               .arg(ile(Licznik::Dodane))
               .arg(ile(Licznik::Poprawione))
               .arg(ile(Licznik::Pominiete))
               .arg(ile(Licznik::BezZmian));
  if (RozmiarPliku(wynik.plikPominietych) > 0)
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
        WynikJson(operacja.rodzaj.nazwa, koniec.nazwa, operacja.liczniki, wynik, postep.Pokazane()));
  else
    terminal::Wypisz(Podsumowanie(operacja, koniec, wynik));
  return koniec.status;
}
