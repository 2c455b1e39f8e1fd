#include "app/postep_terminala.h"

#include <algorithm>

#include "app/terminal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kCzyscLinie = u"\r\033[K"_s;

}  // namespace

PostepTerminala::PostepTerminala() : m_zywy(terminal::BledyNaTerminalu()) {}

PostepTerminala::~PostepTerminala() {
  ZamknijLinie();
}

void PostepTerminala::Faza(const QString& tekst, long long maksimum) {
  ZamknijLinie();
  m_tekst = tekst;
  m_maksimum = maksimum;
  m_pozycja = 0;
  m_liczba.reset();
  m_tempo = Tempo();
  m_trwa = true;
  m_przerwana = false;
  if (m_zywy)
    Rysuj();
  else
    terminal::WypiszBlad(tekst);
}

void PostepTerminala::Pozycja(long long pozycja) {
  m_pozycja = pozycja;
  // A number follows and is drawn with it.
  if (m_zywy && !m_liczba && m_dlawik.Przepusc()) Rysuj();
}

void PostepTerminala::DopiszLiczbe(long long liczba) {
  m_liczba = liczba;
  if (m_zywy && m_dlawik.Przepusc()) Rysuj();
}

void PostepTerminala::Gotowe() {
  if (!m_trwa) return;
  m_trwa = false;
  const QString koniec = m_liczba ? u"\n"_s : u" ✓\n"_s;
  if (m_zywy)
    terminal::WypiszBlad(kCzyscLinie + Linia() + koniec);
  else if (m_przerwana)
    terminal::WypiszBlad(Linia() + koniec);
  else
    terminal::WypiszBlad(Linia().mid(m_tekst.size()) + koniec);
}

void PostepTerminala::Pokaz(const QString& tytul, const QString& tekst) {
  m_pokazane.push_back({tytul, tekst});
  WypiszMiedzyLiniami(terminal::JednaLinia({tytul, tekst}));
}

void PostepTerminala::PokazUwage(const QString& linia) {
  WypiszMiedzyLiniami(terminal::JednaLinia({u"Uwaga"_s, linia}));
}

void PostepTerminala::WypiszMiedzyLiniami(const QString& tekst) {
  const QString linia = tekst + u'\n';
  if (m_zywy) {
    terminal::WypiszBlad(kCzyscLinie + linia);
    if (m_trwa) Rysuj();
    return;
  }
  terminal::WypiszBlad(m_trwa && !m_przerwana ? u'\n' + linia : linia);
  m_przerwana = true;
}

void PostepTerminala::Koniec() {
  ZamknijLinie();
}

QString PostepTerminala::Linia() const {
  if (!m_liczba) return m_tekst;
  // Some of the texts bring a blank before their number and some do not.
  return m_tekst + (m_tekst.endsWith(u' ') ? u""_s : u" "_s) + QString::number(*m_liczba);
}

QString PostepTerminala::Pasek(qsizetype szerokosc) const {
  const double czesc = std::clamp(static_cast<double>(m_pozycja) / static_cast<double>(m_maksimum), 0.0, 1.0);
  const qsizetype pelnych = static_cast<qsizetype>(czesc * static_cast<double>(szerokosc));
  return u'[' + QString(pelnych, u'#') + QString(szerokosc - pelnych, u'.') +
         u"] %1 %"_s.arg(static_cast<int>(czesc * 100), 3);
}

// Records a second where records are counted, and the time left at the pace so far.
QString PostepTerminala::OpisTempa() const {
  const auto odczyt = m_tempo.Odczytaj(m_pozycja, m_maksimum);
  if (!odczyt) return {};
  const QString naSekunde = m_liczba ? u"  %1/s"_s.arg(odczyt->naSekunde) : QString();
  return naSekunde + u"  zostało "_s + odczyt->zostalo;
}

void PostepTerminala::Rysuj() const {
  QString linia = Linia();
  if (m_maksimum > 0) {
    const QString tempo = OpisTempa();
    constexpr qsizetype kRamka = 12;  // brackets, percents, blanks and the last column, which stays free
    const qsizetype wolne = terminal::Szerokosc() - linia.size() - tempo.size() - kRamka;
    if (wolne >= 5) linia += u"  "_s + Pasek(std::min<qsizetype>(wolne, 40));
    linia += tempo;
  }
  terminal::WypiszBlad(kCzyscLinie + linia.left(terminal::Szerokosc() - 1));
}

// A phase that an error or a stop left open ends as it stands.
void PostepTerminala::ZamknijLinie() {
  if (!m_trwa) return;
  m_trwa = false;
  if (m_zywy || !m_przerwana) terminal::WypiszBlad(u"\n"_s);
}
