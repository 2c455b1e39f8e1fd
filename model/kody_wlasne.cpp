#include "model/kody_wlasne.h"

#include <algorithm>

#include "model/bufor_towarow.h"
#include "model/parametry_systemu.h"
#include "model/reguly_kodow.h"
#include "platform/baza/sesja.h"

namespace {

using Forma = UstawieniaKodowWlasnych::Forma;

// Sequential numbers stay shorter than the shortest bar code, so that no bar code counts as one. Where the
// first number is longer already, all numbers of its length belong to the sequence.
constexpr long long kNajwyzszyKolejny = 9'999'999;
constexpr int kCyfrPrefiksu = 3;

int CyfrNumeru(Forma forma) {
  return forma == Forma::Ean8 ? 4 : 9;
}

long long NajwyzszyNumer(const UstawieniaKodowWlasnych& ustawienia) {
  if (ustawienia.forma == Forma::Ean8) return 9'999;
  if (ustawienia.forma == Forma::Ean13) return 999'999'999;
  long long najwyzszy = kNajwyzszyKolejny;
  while (najwyzszy < ustawienia.pierwszy) najwyzszy = najwyzszy * 10 + 9;
  return najwyzszy;
}

}  // namespace

UstawieniaKodowWlasnych UstawieniaKodowWlasnych::ZParametrow(const ParametrySystemu& parametry) {
  return {static_cast<Forma>(std::clamp(parametry[IdParametru::JakTworzycKodWlasny].AsInteger(), 0, 2)),
          parametry[IdParametru::WykorzystanieZwolnionychKodow].AsFlag(),
          std::clamp(parametry[IdParametru::PrefixKoduWlasnego].AsInteger(), 200, 209),
          std::max(parametry[IdParametru::PierwszyKodWlasny].AsInteger(), 1)};
}

KodyWlasne::KodyWlasne(TVLTBazaDanych& baza, const TVLTBuforTowarow& bufor, const RegulyKodow& reguly,
                       UstawieniaKodowWlasnych ustawienia)
    : m_baza(baza),
      m_bufor(bufor),
      m_reguly(reguly),
      m_ustawienia(ustawienia),
      m_najwyzszyNumer(NajwyzszyNumer(ustawienia)) {}

std::optional<QString> KodyWlasne::Zaproponuj() {
  if (m_nastepny < 0) UstawPoczatek();
  // A sequential number may look like a weighted code or be too short; an EAN form is as a whole right or
  // wrong.
  const auto doPrzyjecia = [this](const QString& kod) {
    return m_ustawienia.forma != Forma::Kolejny || m_reguly.SprawdzDodatkowy(kod).Dobry();
  };
  for (; m_nastepny <= m_najwyzszyNumer; ++m_nastepny)
    if (QString kod = Kod(m_nastepny); doPrzyjecia(kod) && Wolny(kod)) return kod;
  return std::nullopt;
}

void KodyWlasne::Potwierdz(QStringView kod) {
  if (m_nastepny < 0) return;  // the first use will find it in the database
  const auto numer = Numer(kod);
  if (!numer) return;
  if (!m_ustawienia.zwolnione)
    m_nastepny = std::max(m_nastepny, *numer + 1);
  else if (*numer == m_nastepny)
    ++m_nastepny;
}

QString KodyWlasne::Kod(long long numer) const {
  if (m_ustawienia.forma == Forma::Kolejny) return QString::number(numer);
  const QString cyfry = QString::number(m_ustawienia.prefiks) +
                        QString::number(numer).rightJustified(CyfrNumeru(m_ustawienia.forma), u'0');
  return cyfry + CyfraKontrolna(cyfry);
}

// The number of an own code; nothing for any other code.
std::optional<long long> KodyWlasne::Numer(QStringView kod) const {
  if (kod.isEmpty() || kod.size() > 18 || !SameCyfry(kod)) return std::nullopt;
  const QStringView cyfry =
      m_ustawienia.forma == Forma::Kolejny ? kod : kod.mid(kCyfrPrefiksu, CyfrNumeru(m_ustawienia.forma));
  const long long numer = cyfry.toLongLong();
  if (numer > m_najwyzszyNumer || kod != Kod(numer)) return std::nullopt;
  return numer;
}

bool KodyWlasne::Wolny(const QString& kod) const {
  if (m_bufor.Gotowy() && m_bufor.BrakJestPewny() && !m_bufor.MozeByKod(kod)) return true;
  for (const std::string_view sql :
       {"select TowId from Towar where Kod = :Kod", "select TowId from KodDod where Kod = :Kod"})
    if (m_baza.Otworz(sql, {TypPola::Calkowite}, {{"Kod", kod}}).Nastepny()) return false;
  return true;
}

void KodyWlasne::UstawPoczatek() {
  long long poczatek = m_ustawienia.pierwszy;
  if (!m_ustawienia.zwolnione)
    for (const std::string_view sql : {"select Kod from Towar", "select Kod from KodDod"})
      for (auto odczyt = m_baza.Otworz(sql, {TypPola::Tekst}); odczyt.Nastepny();)
        if (const auto numer = Numer(odczyt[0].AsString())) poczatek = std::max(poczatek, *numer + 1);
  m_nastepny = poczatek;
}
