#include "contractors/transfer_kontrahenta.h"

#include <span>
#include <vector>

#include "contractors/kontekst_importu_kontrahentow.h"
#include "exchange/pola_rekordu.h"
#include "model/kontrahent.h"
#include "run/raport_problemow.h"
#include "run/uwagi.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using K = TDmVLTKontrahent;

// One field on its way.
struct Przenoszone {
  const PolaRekordu& pola;
  int pole;
  K& kontrahent;
  RaportProblemow& raport;
  Uwagi& uwagi;
  int numer;  // of the record
};

template <auto Ustaw>
Odmowa Tekst(const Przenoszone& p) {
  (p.kontrahent.*Ustaw)(p.pola.Tekst(p.pole));
  return std::nullopt;
}

// What is no number is as good as absent.
template <auto Ustaw>
Odmowa Liczba(const Przenoszone& p) {
  (p.kontrahent.*Ustaw)(p.pola.Calkowita(p.pole, 0).wartosc);
  return std::nullopt;
}

template <auto Ustaw, bool Domyslna = false>
Odmowa Flaga(const Przenoszone& p) {
  (p.kontrahent.*Ustaw)(p.pola.Calkowita(p.pole, Domyslna ? 1 : 0).wartosc != 0);
  return std::nullopt;
}

template <auto Ustaw>
Odmowa Kwota(const Przenoszone& p) {
  const auto liczba = p.pola.Liczba(p.pole);
  if (!liczba.poprawny) return liczba.bledny + u" nie jest liczbą"_s;
  (p.kontrahent.*Ustaw)(liczba.wartosc);
  return std::nullopt;
}

// Takes a number of so many digits off the front; 0, which no date has, when there is none.
int WezCyfry(QStringView& tekst, qsizetype najmniej, qsizetype najwiecej) {
  int liczba = 0;
  qsizetype cyfr = 0;
  for (; cyfr < tekst.size() && tekst[cyfr] >= u'0' && tekst[cyfr] <= u'9'; ++cyfr) {
    if (cyfr == najwiecej) return 0;
    liczba = liczba * 10 + (tekst[cyfr].unicode() - u'0');
  }
  tekst = tekst.mid(cyfr);
  return cyfr < najmniej ? 0 : liczba;
}

bool WezKropke(QStringView& tekst) {
  if (!tekst.startsWith(u'.')) return false;
  tekst = tekst.mid(1);
  return true;
}

Odmowa TerminKarty(const Przenoszone& p) {
  const QString tekst = p.pola.Trim(p.pole);
  if (const QDate data = DataZPliku(tekst); data.isValid())
    p.kontrahent.UstawTermWaznKarty(data);
  else if (!tekst.isEmpty())
    p.uwagi.Zglos({RodzajUwagi::Data}, p.numer);
  return std::nullopt;
}

// "(Kowalski|Nowak)"; "()" names nobody.
std::optional<std::vector<QString>> CzytajOsoby(QStringView lista) {
  if (lista.size() < 2 || lista.front() != u'(' || lista.back() != u')') return std::nullopt;
  std::vector<QString> osoby;
  for (const QStringView osoba : lista.mid(1, lista.size() - 2).split(u'|'))
    osoby.push_back(osoba.trimmed().toString());
  return osoby;
}

Odmowa Osoby(const Przenoszone& p) {
  const QString lista = p.pola.Trim(p.pole);
  if (lista.isEmpty()) return std::nullopt;
  if (const auto osoby = CzytajOsoby(lista))
    p.kontrahent.UstawOsoby(*osoby);
  else
    p.raport.Zglos(u"Błąd w polu osób uprawnionych do odbioru faktury"_s, false);
  return std::nullopt;
}

struct Pole {
  int numer;
  Odmowa (*przenies)(const Przenoszone&);
};

// In the order of the catalogue, behind the name and the tax number.
constexpr Pole kPola[] = {
    {PoleKontrahenta::NazwaSkrocona, Tekst<&K::UstawSkrot>},
    {PoleKontrahenta::Ulica, Tekst<&K::UstawUlica>},
    {PoleKontrahenta::KodPocztowy, Tekst<&K::UstawKod>},
    {PoleKontrahenta::Miasto, Tekst<&K::UstawMiasto>},
    {PoleKontrahenta::Telefon, Tekst<&K::UstawTelefon>},
    {PoleKontrahenta::Fax, Tekst<&K::UstawFax>},
    {PoleKontrahenta::Email, Tekst<&K::UstawEMail>},
    {PoleKontrahenta::NazwaBanku, Tekst<&K::UstawBank>},
    {PoleKontrahenta::Konto, Tekst<&K::UstawKonto>},
    {PoleKontrahenta::Dostawca, Flaga<&K::UstawDostawca>},
    {PoleKontrahenta::Odbiorca, Flaga<&K::UstawOdbiorca>},
    {PoleKontrahenta::Producent, Flaga<&K::UstawProducent>},
    {PoleKontrahenta::Sklep, Flaga<&K::UstawSklep>},
    {PoleKontrahenta::Kontakty, Flaga<&K::UstawStaly, true>},
    {PoleKontrahenta::NumerAnalityki, Tekst<&K::UstawNrAnalityki>},
    {PoleKontrahenta::KodKontrahenta, Tekst<&K::UstawKodKontr>},
    {PoleKontrahenta::ZakladPracyChronionej, Flaga<&K::UstawZakPracChron>},
    {PoleKontrahenta::NaPrzelewie1, Tekst<&K::UstawNaPrzelewie1>},
    {PoleKontrahenta::NaPrzelewie2, Tekst<&K::UstawNaPrzelewie2>},
    {PoleKontrahenta::RabatUDostawcy, Kwota<&K::UstawRabatDost>},
    {PoleKontrahenta::FormaPlatnosciDostawcy, Liczba<&K::UstawFormaPlatDost>},
    {PoleKontrahenta::TerminPlatnosciDostawcy, Liczba<&K::UstawTermPlatDost>},
    {PoleKontrahenta::CzasRealizacjiZamowienia, Liczba<&K::UstawCzasRealZam>},
    {PoleKontrahenta::RabatDlaOdbiorcy, Kwota<&K::UstawRabatOdb>},
    {PoleKontrahenta::FormaPlatnosciOdbiorcy, Liczba<&K::UstawFormaPlatOdb>},
    {PoleKontrahenta::TerminPlatnosciOdbiorcy, Liczba<&K::UstawTermPlatOdb>},
    {PoleKontrahenta::MaksymalnyKredyt, Kwota<&K::UstawMaxKredyt>},
    {PoleKontrahenta::MaksymalnePrzekroczenieTerminu, Liczba<&K::UstawMaxPoTermPlat>},
    {PoleKontrahenta::KodKarty, Tekst<&K::UstawKodKarty>},
    {PoleKontrahenta::KartaAktywna, Flaga<&K::UstawKartaAktywna>},
    {PoleKontrahenta::TerminWaznosciKarty, TerminKarty},
    {PoleKontrahenta::PoziomRabatu, Liczba<&K::UstawPoziomRabatu>},
    {PoleKontrahenta::OsobyUprawnione, Osoby},
    {PoleKontrahenta::Status, Flaga<&K::UstawAktywny, true>},
};
constexpr int kPierwsze = PoleKontrahenta::NazwaSkrocona;

constexpr bool WKolejnosci() {
  int numer = kPierwsze;
  for (const Pole& pole : kPola)
    if (pole.numer != numer++) return false;
  return numer == PoleKontrahenta::LiczbaWartosci;
}
static_assert(WKolejnosci());

}  // namespace

QDate DataZPliku(QStringView tekst) {
  const int dzien = WezCyfry(tekst, 1, 2);
  if (!WezKropke(tekst)) return {};
  const int miesiac = WezCyfry(tekst, 1, 2);
  if (!WezKropke(tekst)) return {};
  const int rok = WezCyfry(tekst, 4, 4);
  return tekst.isEmpty() ? QDate(rok, miesiac, dzien) : QDate();
}

Odmowa TransferKontrahenta::Przenies(int od, int doo) {
  const bool nowy = m_kontrahent.CzyNowy();
  for (const Pole& pole : std::span(kPola).subspan(static_cast<std::size_t>(od - kPierwsze),
                                                   static_cast<std::size_t>(doo - od + 1))) {
    if (!nowy && !m_import.Aktualizuje(pole.numer)) continue;
    if (auto odmowa =
            pole.przenies({m_pola, pole.numer, m_kontrahent, m_import.raport, m_import.uwagi, m_numer}))
      return odmowa;
  }
  return std::nullopt;
}
