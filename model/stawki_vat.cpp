#include "model/stawki_vat.h"

#include <algorithm>
#include <cmath>

#include "model/bledy.h"
#include "model/tabele_dziennika.h"
#include "platform/baza/sesja.h"
#include "platform/baza/transakcja.h"
#include "platform/liczby.h"

namespace {

int Ogranicz(int stawka) {
  return std::clamp(stawka, kStawkaZwolniona, kStawkaNajwyzsza);
}

bool WZakresie(long long stawka) {
  return stawka >= kStawkaZwolniona && stawka <= kStawkaNajwyzsza;
}

double Ulamek(int stawka) {
  return stawka * 0.0001;
}

}  // namespace

// The tiny excess covers decimal halves that binary numbers hold a hair too
// low.
double Zaokraglij(double kwota, int miejsc) {
  const double skala = std::pow(10.0, miejsc);
  return std::round(kwota * skala * (1 + 1e-12)) / skala;
}

int TVLTStawkiVat::Stawka(int index) const {
  if (index < 0 || index >= Ilosc()) throw EVLTWDError(2003, nullptr, QString::number(index));
  return m_stawki.GetValues()[static_cast<std::size_t>(Ilosc() - 1 - index)];
}

void TVLTStawkiVat::Dodaj(int stawka) {
  m_stawki.Add(Ogranicz(stawka));
}

void TVLTStawkiVat::Usun(int index) {
  m_stawki.Remove(Stawka(index));
}

bool TVLTStawkiVat::Zawiera(int stawka) const {
  return m_stawki.Contains(stawka);
}

int TVLTStawkiVat::Indeks(int stawka) const {
  for (int i = 0; i < Ilosc(); ++i)
    if (Stawka(i) == stawka) return i;
  return -1;
}

void TVLTStawkiVat::Kopiuj(const TVLTStawkiVat& inne) {
  m_stawki = inne.m_stawki;
}

bool TVLTStawkiVat::Rowne(const TVLTStawkiVat& inne) const {
  return m_stawki.GetValues() == inne.m_stawki.GetValues();
}

void TVLTStawkiVat::Wczytaj(TVLTBazaDanych& baza) {
  Wyczysc();
  for (auto odczyt = baza.Otworz("select Stawka from Vat", {TypPola::Calkowite}); odczyt.Nastepny();)
    if (const long long stawka = odczyt[0].AsInteger(); !odczyt[0].IsNull() && WZakresie(stawka))
      Dodaj(static_cast<int>(stawka));
}

void TVLTStawkiVat::Zapisz(TVLTBazaDanych& baza) const {
  JednostkaZapisu jednostka(baza);
  baza.ExecSQL("delete from Vat");
  QString zmiana = QStringLiteral("Nowe stawki: ");
  for (int i = 0; i < Ilosc(); ++i) {
    baza.ExecSQL("insert into Vat (Stawka) values (:Stawka)", {{"Stawka", Stawka(i)}});
    if (i > 0) zmiana += QStringLiteral(", ");
    zmiana += QString::number(Stawka(i));
  }
  baza.RejestrujZmiane(kDziennikStawkiVat, zmiana, -1, -1);
  jednostka.Zatwierdz();
}

void TVLTStawkiVat::ZapiszZmiany(TVLTBazaDanych& baza, const TVLTStawkiVat& poprzednie) {
  TVLTStawkiVat aktualne;
  JednostkaZapisu jednostka(baza);
  aktualne.Wczytaj(baza);
  for (const int stawka : poprzednie.m_stawki.GetValues())
    if (!Zawiera(stawka)) aktualne.m_stawki.Remove(stawka);
  for (const int stawka : m_stawki.GetValues())
    if (!poprzednie.Zawiera(stawka)) aktualne.Dodaj(stawka);
  aktualne.Zapisz(baza);
  jednostka.Zatwierdz();
  Kopiuj(aktualne);
}

bool TVLTStawkiVat::DopiszDoBazy(TVLTBazaDanych& baza, int stawka) {
  TVLTStawkiVat aktualne;
  JednostkaZapisu jednostka(baza);
  aktualne.Wczytaj(baza);
  const bool nowa = !aktualne.Zawiera(Ogranicz(stawka));
  if (nowa) {
    aktualne.Dodaj(stawka);
    aktualne.Zapisz(baza);
  }
  jednostka.Zatwierdz();
  Kopiuj(aktualne);
  return nowa;
}

QString StawkaNaTekst(int stawka, bool zProcentem) {
  stawka = Ogranicz(stawka);
  if (stawka == kStawkaZwolniona) return QStringLiteral("ZW");
  QString tekst = QString::number(stawka / 100);
  if (const int setne = stawka % 100; setne != 0) {
    tekst += u',' + QString::number(setne).rightJustified(2, u'0');
    if (setne % 10 == 0) tekst.chop(1);
  }
  return zProcentem ? tekst + QStringLiteral(" %") : tekst;
}

int TekstNaStawke(QStringView tekst) {
  QString oczyszczony;
  for (const QChar znak : tekst)
    if (!znak.isSpace() && znak != u'%') oczyszczony += znak;
  if (oczyszczony.startsWith(u"ZW", Qt::CaseInsensitive)) return kStawkaZwolniona;
  const char separator = oczyszczony.contains(u',') ? ',' : '.';
  const auto procent = liczby::Liczba(QStringView(oczyszczony), separator);
  const double setne = procent ? std::round(*procent * 100) : kStawkaZwolniona - 1;
  if (!(setne >= kStawkaZwolniona && setne <= kStawkaNajwyzsza)) throw EVLTWDError(2401);
  return static_cast<int>(setne);
}

double BruttoZNetto(double netto, int stawka) {
  return stawka > 0 ? netto * (Ulamek(stawka) + 1) : netto;
}

double NettoZBrutto(double brutto, int stawka) {
  return stawka > 0 ? brutto / (Ulamek(stawka) + 1) : brutto;
}

double VatZNetto(double netto, int stawka) {
  return stawka > 0 ? netto * Ulamek(stawka) : 0;
}

double VatZBrutto(double brutto, int stawka) {
  return stawka > 0 ? brutto * Ulamek(stawka) / (Ulamek(stawka) + 1) : 0;
}

ParaCen ObliczPareCen(double cena, bool brutto, int stawka, int miejsc) {
  const double netto = Zaokraglij(brutto ? NettoZBrutto(cena, stawka) : cena, miejsc);
  const double zBrutto = Zaokraglij(brutto ? cena : BruttoZNetto(cena, stawka), miejsc);
  return {netto, zBrutto, zBrutto - netto};
}
