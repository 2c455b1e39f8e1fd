#include "model/bufor_nip.h"

#include <algorithm>

#include "platform/baza/sesja.h"

namespace {
constexpr int kCoIlePostep = 1000;

bool Cyfra(QChar znak) {
  return znak >= u'0' && znak <= u'9';
}
}  // namespace

QString NormalizujNip(QStringView nip) {
  QString cyfry(nip.size(), Qt::Uninitialized);
  const auto koniec = std::copy_if(nip.begin(), nip.end(), cyfry.begin(), Cyfra);
  cyfry.truncate(koniec - cyfry.begin());
  return cyfry;
}

int TVLTBuforNip::IloscKontrahentow(TVLTBazaDanych& baza) {
  auto odczyt = baza.Otworz("select count(*) from Kontrahent", {TypPola::Calkowite});
  return odczyt.Nastepny() ? static_cast<int>(odczyt[0].AsInteger()) : 0;
}

bool TVLTBuforNip::Napelnij(TVLTBazaDanych& baza, const Postep& postep) {
  Wyczysc();
  m_znacznik = baza.ZnacznikObcychZmian();
  int ilosc = 0;
  for (auto odczyt = baza.Otworz("select KontrId, NIP, Ulica, Miasto from Kontrahent order by KontrId",
                                 {TypPola::Calkowite, TypPola::Tekst, TypPola::Tekst, TypPola::Tekst});
       odczyt.Nastepny();) {
    const bool adres = m_zawartosc == Zawartosc::NipyIAdresy;
    Dodaj(static_cast<int>(odczyt[0].AsInteger()), odczyt[1].AsString(),
          adres ? odczyt[2].AsString() : QString(), adres ? odczyt[3].AsString() : QString());
    if (++ilosc % kCoIlePostep == 0 && postep && !postep(ilosc)) {
      Wyczysc();
      return false;
    }
  }
  m_aktualny = true;
  return true;
}

void TVLTBuforNip::Odswiez(TVLTBazaDanych& baza) {
  if (!m_aktualny || baza.ZnacznikObcychZmian() != m_znacznik) Napelnij(baza);
}

std::span<const int> TVLTBuforNip::Kontrahenci(QStringView nip) const {
  const auto znalezieni = m_kontrahenci.constFind(NormalizujNip(nip));
  if (znalezieni == m_kontrahenci.constEnd()) return {};
  return *znalezieni;
}

int TVLTBuforNip::Znajdz(QStringView nip) const {
  const auto kontrahenci = Kontrahenci(nip);
  return kontrahenci.empty() ? -1 : kontrahenci.front();
}

bool TVLTBuforNip::MaAdres(QStringView nip, const QString& ulica, const QString& miasto) const {
  return m_adresy.contains(KluczAdresu(NormalizujNip(nip), ulica, miasto));
}

void TVLTBuforNip::Dodaj(int kontrId, QStringView nip, const QString& ulica, const QString& miasto) {
  const QString cyfry = NormalizujNip(nip);
  if (m_zawartosc == Zawartosc::NipyIAdresy) m_adresy.insert(KluczAdresu(cyfry, ulica, miasto));
  if (cyfry.isEmpty()) return;
  std::vector<int>& kontrahenci = m_kontrahenci[cyfry];
  kontrahenci.insert(std::lower_bound(kontrahenci.begin(), kontrahenci.end(), kontrId), kontrId);
}

// The street's length keeps a street apart from the city behind it.
QString TVLTBuforNip::KluczAdresu(const QString& cyfry, const QString& ulica, const QString& miasto) {
  if (cyfry.isEmpty()) return u'|' + ulica + miasto;
  return cyfry + u'|' + QString::number(ulica.size()) + u'|' + ulica + miasto;
}

void TVLTBuforNip::Wyczysc() {
  m_kontrahenci.clear();
  m_adresy.clear();
}
