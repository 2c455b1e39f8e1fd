#include "goods/numeracja_nazw.h"

#include <algorithm>

#include "platform/baza/sesja.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kPoczatek = u"Towar bez nazwy "_s;

long long NajwyzszyNumer(TVLTBazaDanych& baza) {
  long long najwyzszy = 0;
  auto odczyt = baza.Otworz("select Nazwa from Towar where Nazwa like :Wzor", {TypPola::Tekst},
                            {{"Wzor", kPoczatek + u'%'}});
  while (odczyt.Nastepny()) {
    bool liczba = false;
    // What does not fit an int was not numbered here; there is always room for one more behind the others.
    const long long numer = odczyt[0].AsString().mid(kPoczatek.size()).toInt(&liczba);
    if (liczba) najwyzszy = std::max(najwyzszy, numer);
  }
  return najwyzszy;
}

}  // namespace

QString NumeracjaNazw::Zaproponuj() {
  if (!m_najwyzszy) m_najwyzszy = NajwyzszyNumer(m_baza);
  return kPoczatek + QString::number(*m_najwyzszy + 1).rightJustified(4, u'0');
}

void NumeracjaNazw::Potwierdz() {
  if (m_najwyzszy) ++*m_najwyzszy;
}
