#include "goods/wiersz_towaru.h"

#include <cstdint>

#include "exchange/format_liczb.h"
#include "goods/odczyt_towarow.h"
#include "goods/opcje_towarow.h"
#include "goods/slowniki_eksportu.h"
#include "model/stawki_vat.h"
#include "model/towar.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using P = PoleEksportu;
using Opcje = OpcjeEksportuTowarow;

const Wartosc& Pole(const WierszTowaru& w, P::Numer pole) {
  return (*w.towar.wiersz)[pole];
}

template <P::Numer Numer>
void Tekst(const WierszTowaru& w) {
  w.pola.Tekst(Pole(w, Numer).AsString());
}

template <P::Numer Numer>
void Nazwa(const WierszTowaru& w) {
  w.pola.Nazwa(Pole(w, Numer).AsString());
}

template <P::Numer Numer>
void Liczba(const WierszTowaru& w) {
  w.pola.Liczba(Pole(w, Numer).AsFloat());
}

template <P::Numer Numer>
void Calkowita(const WierszTowaru& w) {
  w.pola.Calkowita(Pole(w, Numer).AsInteger());
}

// A fraction in the database, a percentage in the file.
template <P::Numer Numer>
void Procent(const WierszTowaru& w) {
  if (w.opcje.cb_eksportBezMarz)
    w.pola.Ascii(kLiczbaNiewysylana);
  else
    w.pola.Liczba(Pole(w, Numer).AsFloat() * 100);
}

// Prices are stored net. The rate is looked at as 16 bits without a sign, so that the exempt one is 65535 and
// adds nothing.
template <P::Numer Numer, PoziomCeny Opcje::*Poziom>
void Cena(const WierszTowaru& w) {
  if (w.opcje.cb_eksportBezCen) {
    w.pola.Ascii(kLiczbaNiewysylana);
    return;
  }
  const double netto = Pole(w, Numer).AsFloat();
  const auto stawka = static_cast<std::uint16_t>(Pole(w, P::Stawka).AsInteger());
  const bool brutto = w.opcje.*Poziom != PoziomCeny::Netto && stawka > 0 && stawka < 65535;
  w.pola.Liczba(brutto ? Zaokraglij(netto * (1 + stawka * 0.0001), 2) : netto);
}
constexpr auto kZakup = &Opcje::cb_poziomCenyZakupuEksp;
constexpr auto kSprzedaz = &Opcje::cb_poziomCenSprzedazyEksp;

void Kod(const WierszTowaru& w) {
  const QString kod = w.opcje.cb_eksportBezKodow ? QString() : Pole(w, P::Kod).AsString();
  w.pola.Nazwa(kod);
  if (ZaczynaKomentarz(kod)) w.pola.DodajPowod(u"kod czytany jako komentarz");
  if (kod.isEmpty() && !w.opcje.cb_eksportBezKodow) w.pola.DodajPowod(u"brak kodu");
}

void Typ(const WierszTowaru& w) {
  const long long typ = Pole(w, P::TypTowaru).AsInteger();
  const bool znany = typ >= static_cast<int>(TypTowaru::Towar) && typ <= static_cast<int>(TypTowaru::Usluga);
  w.pola.Calkowita(znany ? typ : 0);
}

void Asortyment(const WierszTowaru& w) {
  w.pola.Nazwa(w.slowniki.Asortyment(Pole(w, P::AsId).AsInteger()));
}

void Jednostka(const WierszTowaru& w) {
  w.pola.Nazwa(w.slowniki.Jednostka(Pole(w, P::JMId).AsInteger()));
}

void KodyDodatkoweTowaru(const WierszTowaru& w) {
  QString blok;
  std::u16string_view powod;
  if (!w.opcje.cb_eksportBezKodow)
    for (const KodDodatkowy& kod : w.towar.kody) {
      if (!blok.isEmpty()) blok += u';';
      blok += u'(' + kod.kod + u'|' + kod.skrot + u'|' + QString::number(kod.prefPLU) + u')';
      if (kod.skrot.isEmpty()) powod = u"kod dodatkowy bez skrótu";
      if (GinieWBloku(kod.kod, u"(|)") || GinieWBloku(kod.skrot, u"(|)")) powod = kZnakiBloku;
    }
  w.pola.Blok(blok, powod);
}

void Kategoria(const WierszTowaru& w) {
  const KategoriaEksportu* kategoria =
      w.opcje.cb_eksportBezKategorii ? nullptr : w.slowniki.Kategoria(Pole(w, P::KatId).AsInteger());
  w.pola.Blok(kategoria ? kategoria->Blok(w.towar.wartosci) : QString(),
              kategoria && !kategoria->Wroci() ? u"kategoria czytana inaczej" : u"");
}

void Stan(const WierszTowaru& w) {
  if (w.towar.stan)
    w.pola.Liczba(*w.towar.stan);
  else
    w.pola.Ascii({});
}

constexpr std::u16string_view kCudzyNip = u"NIP nie wskaże tego kontrahenta";

void NipProducenta(const WierszTowaru& w) {
  const NipKontrahenta& producent = w.slowniki.Nip(Pole(w, P::Producent).AsInteger());
  w.pola.Nazwa(producent.nip);
  if (!producent.wskazuje) w.pola.DodajPowod(kCudzyNip);
}

void NipyDostawcow(const WierszTowaru& w) {
  QString blok;
  std::u16string_view powod;
  for (const int kontrId : w.towar.dostawcy) {
    const NipKontrahenta& dostawca = w.slowniki.Nip(kontrId);
    if (dostawca.nip.isEmpty()) continue;
    blok += blok.isEmpty() ? u'(' : u'|';
    blok += dostawca.nip;
    if (!dostawca.wskazuje) powod = kCudzyNip;
    if (GinieWBloku(dostawca.nip, u"(|;)")) powod = kZnakiBloku;
  }
  if (!blok.isEmpty()) blok += u')';
  w.pola.Blok(blok, powod);
}

constexpr KolumnaEksportu<WierszTowaru> kKolumny[] = {
    {u"Kod towaru", Kod},
    {u"Nazwa towaru", Nazwa<P::Nazwa>},
    {u"Skrót (nazwa na kasach)", Nazwa<P::Skrot>},
    {u"Typ towaru", Typ},
    {u"Indeks1 (SWW)", Tekst<P::Indeks1>},
    {u"Indeks2 (PKWiU)", Tekst<P::Indeks2>},
    {u"Opis 1", Tekst<P::Opis1>},
    {u"Opis 2", Tekst<P::Opis2>},
    {u"Opis 3", Tekst<P::Opis3>},
    {u"Opis 4", Tekst<P::Opis4>},
    {u"Ilość w opakowaniu zbiorczym", Liczba<P::IleWZgrzewce>},
    {u"Ile kilogramów/litrów", Liczba<P::IleWCalosci>},
    {u"Termin ważności", Calkowita<P::TermWazn>},
    {u"Preferowany numer na kasie", Calkowita<P::PrefPLU>},
    {u"Marża", Procent<P::Marza>},
    {u"Rabat hurtowy", Procent<P::HurtRabat>},
    {u"Narzut nocny", Procent<P::NocNarzut>},
    {u"Cena ewidencyjna", Cena<P::CenaEw, kZakup>},
    {u"Cena detaliczna (netto)", Cena<P::CenaDet, kSprzedaz>},
    {u"Cena hurtowa", Cena<P::CenaHurt, kSprzedaz>},
    {u"Cena nocna", Cena<P::CenaNoc, kSprzedaz>},
    {u"Cena dodatkowa", Cena<P::CenaDod, kSprzedaz>},
    {u"Cena otwarta", Calkowita<P::CenaOtwarta>},
    {u"Stawka VAT", Calkowita<P::Stawka>},
    {u"Nazwa asortymentu", Asortyment},
    {u"Jednostka", Jednostka},
    {u"Kody dodatkowe", KodyDodatkoweTowaru},
    {u"Kategoria i parametry", Kategoria},
    {u"Stan", Stan},
    {u"NIP producenta", NipProducenta},
    {u"NIP-y dostawców", NipyDostawcow},
    {u"Status towaru", Calkowita<P::Aktywny>},
};
static_assert(std::size(kKolumny) == 32);

}  // namespace

std::span<const KolumnaEksportu<WierszTowaru>> KolumnyTowaru() {
  return kKolumny;
}
