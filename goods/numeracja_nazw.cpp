#include "goods/numeracja_nazw.h"

#include <algorithm>

#include "platform/baza/sesja.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kPoczatek = u"Towar bez nazwy "_s;
constexpr long long kNajwyzszyNumer = 999'999'999'999'999'999;  // there is always room for one more behind it

// 0 for any other name.
long long Numer(QStringView nazwa) {
  if (!nazwa.startsWith(kPoczatek)) return 0;
  bool liczba = false;
  const long long numer = nazwa.mid(kPoczatek.size()).toLongLong(&liczba);
  return liczba && numer <= kNajwyzszyNumer ? numer : 0;
}

long long NajwyzszyNumer(TVLTBazaDanych& baza) {
  long long najwyzszy = 0;
  // Some databases do not tell capitals from small letters here.
  auto odczyt = baza.Otworz("select Nazwa from Towar where Nazwa like :Wzor", {TypPola::Tekst},
                            {{"Wzor", kPoczatek + u'%'}});
  while (odczyt.Nastepny()) najwyzszy = std::max(najwyzszy, Numer(odczyt[0].AsString()));
  return najwyzszy;
}

}  // namespace

QString NumeracjaNazw::Zaproponuj() {
  if (!m_odczytany) m_najwyzszy = std::max(m_najwyzszy, NajwyzszyNumer(m_baza));
  m_odczytany = true;
  return kPoczatek + QString::number(m_najwyzszy + 1).rightJustified(4, u'0');
}

void NumeracjaNazw::Zapisana(QStringView nazwa) {
  m_najwyzszy = std::max(m_najwyzszy, Numer(nazwa));
}

void NumeracjaNazw::CofnijPaczke() {
  m_najwyzszy = m_zatwierdzony;
  m_odczytany = false;
}
