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
  QString cyfry;
  std::copy_if(nip.begin(), nip.end(), std::back_inserter(cyfry), Cyfra);
  return cyfry;
}

int TVLTBuforNip::IloscKontrahentow(TVLTBazaDanych& baza) {
  auto odczyt = baza.Otworz("select count(*) from Kontrahent", {TypPola::Calkowite});
  return odczyt.Nastepny() ? static_cast<int>(odczyt[0].AsInteger()) : 0;
}

bool TVLTBuforNip::Napelnij(TVLTBazaDanych& baza, const Postep& postep) {
  m_kontrahenci.clear();
  int ilosc = 0;
  for (auto odczyt = baza.Otworz("select KontrId, NIP from Kontrahent order by KontrId",
                                 {TypPola::Calkowite, TypPola::Tekst});
       odczyt.Nastepny();) {
    Dodaj(static_cast<int>(odczyt[0].AsInteger()), odczyt[1].AsString());
    if (++ilosc % kCoIlePostep == 0 && postep && !postep(ilosc)) {
      m_kontrahenci.clear();
      return false;
    }
  }
  return true;
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

void TVLTBuforNip::Dodaj(int kontrId, QStringView nip) {
  const QString cyfry = NormalizujNip(nip);
  if (cyfry.isEmpty()) return;
  std::vector<int>& kontrahenci = m_kontrahenci[cyfry];
  kontrahenci.insert(std::lower_bound(kontrahenci.begin(), kontrahenci.end(), kontrId), kontrId);
}
