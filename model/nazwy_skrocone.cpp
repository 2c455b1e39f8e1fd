#include "model/nazwy_skrocone.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "model/bufor_towarow.h"
#include "platform/baza/sesja.h"
#include "platform/config.h"

namespace {

constexpr QStringView kPolskie = u"ĄĆĘŁŃÓŚŹŻąćęłńóśźż";
constexpr QStringView kBezOgonkow = u"ACELNOSZZacelnoszz";
constexpr QStringView kMalePolskie = u"ąćęłńóśźż";

constexpr int kProb = 9999;
constexpr int kZnakowSkrotu = 3;  // of a long word in an abbreviated name

bool Miedzy(QChar znak, char16_t od, char16_t do_) {
  return znak >= od && znak <= do_;
}

bool ZAlfabetu(QChar znak) {
  return Miedzy(znak, u'A', u'Z') || Miedzy(znak, u'a', u'z') || Miedzy(znak, u'0', u'9') ||
         kPolskie.contains(znak);
}

bool Mala(QChar znak) {
  return Miedzy(znak, u'a', u'z') || kMalePolskie.contains(znak);
}

size_t Odcisk(const QString& skrot) {
  return qHash(skrot, 0);
}

QString BezPowtorzenIAlfabetu(const QString& znaki) {
  QString wynik;
  for (const QChar znak : znaki)
    if (!ZAlfabetu(znak) && !wynik.contains(znak)) wynik += znak;
  return wynik;
}

RegulySkrotow ZStarszychWykazow(const TMConfig& config) {
  RegulySkrotow reguly;
  reguly.jakTworzyc = config.Calkowita(QStringLiteral("JakTworzycSkrotTowaru"), 0) != 0 ? 1 : 0;
  const int spacje = config.Calkowita(QStringLiteral("SpacjeWSkrocie"), 0);
  reguly.spacjeNaZnak = spacje == 2 ? u'_' : spacje == 1 ? u'\0' : u' ';
  reguly.inneSeparatory = QStringLiteral("'\"");
  reguly.maxDlugosc = config.Calkowita(QStringLiteral("MaxSkrotTowaru"), reguly.maxDlugosc);
  return reguly;
}

// Nothing when none of the keys is there; a missing one among others keeps the default.
std::optional<RegulySkrotow> ZNazwySkroconej(const TMConfig& config) {
  bool jest = false;
  const auto calkowita = [&](const QString& nazwa, int domyslna) {
    jest = jest || config.ParamByName(nazwa) != nullptr;
    return config.Calkowita(nazwa, domyslna);
  };
  const auto tekst = [&](const QString& nazwa) {
    jest = jest || config.ParamByName(nazwa) != nullptr;
    return config.Tekst(nazwa);
  };
  RegulySkrotow reguly;
  reguly.jakTworzyc = std::clamp(calkowita(QStringLiteral("JakTworzycSkrot"), reguly.jakTworzyc), 0, 1);
  reguly.polskieZnaki = calkowita(QStringLiteral("CzyPolskieZnaki"), 1) != 0;
  reguly.maleLitery = calkowita(QStringLiteral("CzyMaleLitery"), 1) != 0;
  reguly.znakiSpecjalne = BezPowtorzenIAlfabetu(tekst(QStringLiteral("ZnakiSpecjalne")));
  reguly.spacjeNaZnak = static_cast<char16_t>(
      std::clamp(calkowita(QStringLiteral("SpacjeZamienicNaZnak"), reguly.spacjeNaZnak), 0, 0xFFFF));
  reguly.inneSeparatory = tekst(QStringLiteral("InneSeparatory")).trimmed();
  reguly.minDlugosc = calkowita(QStringLiteral("MinDlugosc"), reguly.minDlugosc);
  reguly.maxDlugosc = calkowita(QStringLiteral("MaxDlugosc"), reguly.maxDlugosc);
  return jest ? std::optional(reguly) : std::nullopt;
}

std::vector<QStringView> Slowa(QStringView nazwa, QStringView inneSeparatory) {
  std::vector<QStringView> slowa;
  qsizetype od = 0;
  for (qsizetype i = 0; i <= nazwa.size(); ++i) {
    const bool koniec = i == nazwa.size() || nazwa[i] == u' ' || nazwa[i] == u'\t' || nazwa[i] == u'\r' ||
                        nazwa[i] == u'\n' || inneSeparatory.contains(nazwa[i]);
    if (!koniec) continue;
    if (i > od) slowa.push_back(nazwa.mid(od, i - od));
    od = i + 1;
  }
  return slowa;
}

QString Zlacz(const std::vector<QStringView>& slowa, qsizetype najwyzej, bool zOdstepami) {
  QString tekst;
  for (const QStringView slowo : slowa) {
    if (zOdstepami && !tekst.isEmpty()) tekst += u' ';
    tekst += slowo.left(najwyzej);
  }
  return tekst;
}

using Kolizja = SkrotyTowaru::Kolizja;

// Of all numbers with the same count of digits.
size_t KluczNumerow(QStringView poczatek, int cyfr) {
  return qHash(poczatek, static_cast<size_t>(cyfr));
}

// Both messages open the apostrophe only for an additional code: these are the product's texts.
QString PoczatekKomunikatu(const QString& skrot, bool dodatkowy) {
  return (dodatkowy ? QStringLiteral("Skrót kodu dodatkowego '") : QStringLiteral("Skrót ")) + skrot + u'\'';
}

}  // namespace

SkrotyTowaru::SkrotyTowaru(QString glowny, std::span<const QString> dodatkowe)
    : m_glowny(std::move(glowny)), m_dodatkowe(dodatkowe.begin(), dodatkowe.end()) {
  m_ile.reserve(static_cast<qsizetype>(m_dodatkowe.size()));
  for (const QString& skrot : m_dodatkowe) ++m_ile[skrot];
}

void SkrotyTowaru::Zmien(int indeks, const QString& skrot) {
  if (indeks >= 0) {
    --m_ile[m_dodatkowe[static_cast<std::size_t>(indeks)]];
    ++m_ile[skrot];
  }
  (indeks < 0 ? m_glowny : m_dodatkowe[static_cast<std::size_t>(indeks)]) = skrot;
}

SkrotyTowaru::Kolizja SkrotyTowaru::Znajdz(const QString& skrot, int indeks) const {
  if (indeks >= 0 && skrot == m_glowny) return Kolizja::Glowny;
  const auto miejsce = static_cast<std::size_t>(indeks);
  const bool wlasny = indeks >= 0 && miejsce < m_dodatkowe.size() && skrot == m_dodatkowe[miejsce];
  return m_ile.value(skrot) > (wlasny ? 1 : 0) ? Kolizja::Dodatkowy : Kolizja::Brak;
}

RegulySkrotow RegulySkrotow::Wczytaj(TVLTBazaDanych& baza) {
  TMConfig nowsza;
  baza.WczytajKonfiguracje(QStringLiteral("NazwaSkrocona"), nowsza);
  if (const auto reguly = ZNazwySkroconej(nowsza)) return *reguly;
  TMConfig starsza;
  baza.WczytajKonfiguracje(QStringLiteral("Wykazy"), starsza);
  return ZStarszychWykazow(starsza);
}

bool RegulySkrotow::Dozwolony(QChar znak) const {
  return ZAlfabetu(znak) || (spacjeNaZnak != 0 && znak == spacjeNaZnak) || znakiSpecjalne.contains(znak);
}

TDmVLTNazwySkrocone::TDmVLTNazwySkrocone(TVLTBazaDanych& baza, const TVLTBuforTowarow* bufor)
    : TDmVLTNazwySkrocone(baza, bufor, RegulySkrotow::Wczytaj(baza)) {}

TDmVLTNazwySkrocone::TDmVLTNazwySkrocone(TVLTBazaDanych& baza, const TVLTBuforTowarow* bufor,
                                         RegulySkrotow reguly)
    : m_baza(baza), m_bufor(bufor), m_reguly(std::move(reguly)) {}

TDmVLTNazwySkrocone::Werdykt TDmVLTNazwySkrocone::Ocen(const QString& skrot) const {
  if (skrot.isEmpty()) return Werdykt::Pusty;
  if (skrot.size() < m_reguly.minDlugosc) return Werdykt::ZaKrotki;
  if (skrot.size() > m_reguly.maxDlugosc) return Werdykt::ZaDlugi;
  const auto jest = [&skrot](auto warunek) { return std::any_of(skrot.begin(), skrot.end(), warunek); };
  if (jest([this](QChar znak) { return !m_reguly.Dozwolony(znak); })) return Werdykt::Znaki;
  if (m_reguly.SpacjeZostaja() && skrot.contains(QStringLiteral("  "))) return Werdykt::Odstepy;
  if (!m_reguly.polskieZnaki && jest([](QChar znak) { return kPolskie.contains(znak); }))
    return Werdykt::Polskie;
  if (!m_reguly.maleLitery && jest(Mala)) return Werdykt::Male;
  return Werdykt::Poprawny;
}

bool TDmVLTNazwySkrocone::Poprawny(const QString& skrot) const {
  return Ocen(skrot) == Werdykt::Poprawny;
}

TDmVLTNazwySkrocone::Wynik TDmVLTNazwySkrocone::Sprawdz(const QString& skrot, bool dodatkowy) const {
  const Werdykt werdykt = Ocen(skrot);
  const auto tresc = [&]() -> QString {
    switch (werdykt) {
      case Werdykt::Pusty:
        return QStringLiteral("nie został wpisany");
      case Werdykt::ZaKrotki:
        return QStringLiteral("jest za krótki. Powinien mieć przynajmniej długość %1")
            .arg(m_reguly.minDlugosc);
      case Werdykt::ZaDlugi:
        return QStringLiteral("jest za długi. Powinien mieć najwyżej długość %1").arg(m_reguly.maxDlugosc);
      case Werdykt::Znaki:
        return QStringLiteral("zawiera niedozwolone znaki");
      case Werdykt::Odstepy:
        return QStringLiteral("zawiera sąsiadujące podwójne znaki odstępu");
      case Werdykt::Polskie:
        return QStringLiteral("zawiera polskie znaki");
      case Werdykt::Male:
        return QStringLiteral("zawiera małe litery");
      case Werdykt::Poprawny:
        break;
    }
    return QStringLiteral("jest poprawny");
  };
  return {werdykt == Werdykt::Poprawny, PoczatekKomunikatu(skrot, dodatkowy) + u' ' + tresc()};
}

bool TDmVLTNazwySkrocone::NaPewnoWolny(const QString& skrot, int wlasneId) const {
  if (!m_bufor || !m_bufor->Gotowy() || !m_bufor->BrakJestPewny()) return false;
  if (!m_bufor->MozeBySkrot(skrot)) return true;
  const std::vector<int> towary = m_bufor->TowaryZeSkrotem(skrot);
  return towary.size() == 1 && towary.front() == wlasneId;
}

std::optional<TDmVLTNazwySkrocone::Uzycie> TDmVLTNazwySkrocone::ZnajdzUzycie(const QString& skrot,
                                                                             int wlasneId) const {
  struct Pytanie {
    std::string_view zWlasnym;  // leaves out the good with the given identifier
    std::string_view bez;
  };
#define ZORVIK_ZE_SKROTEM "select TowId, Nazwa, Aktywny from Towar where Skrot = :Skrot"
#define ZORVIK_ZE_SKROTEM_KODU                                 \
  "select T.TowId, T.Nazwa, T.Aktywny from Towar T, KodDod KD" \
  " where T.TowId = KD.TowId and KD.Skrot = :Skrot"
  // Of several goods the one with the lowest identifier is named.
  constexpr Pytanie kPytania[] = {
      {ZORVIK_ZE_SKROTEM " and   TowId <> :TowId order by TowId", ZORVIK_ZE_SKROTEM " order by TowId"},
      {ZORVIK_ZE_SKROTEM_KODU " and   T.TowId <> :TowId order by T.TowId",
       ZORVIK_ZE_SKROTEM_KODU " order by T.TowId"}};
#undef ZORVIK_ZE_SKROTEM
#undef ZORVIK_ZE_SKROTEM_KODU
  if (NaPewnoWolny(skrot, wlasneId)) return std::nullopt;
  const Parametr parametry[] = {{"Skrot", skrot}, {"TowId", wlasneId}};
  const TypPola kolumny[] = {TypPola::Calkowite, TypPola::Tekst, TypPola::Calkowite};
  for (const Pytanie& pytanie : kPytania) {
    const bool zWlasnym = wlasneId >= 0;
    auto odczyt = m_baza.Otworz(zWlasnym ? pytanie.zWlasnym : pytanie.bez, kolumny,
                                std::span(parametry).first(zWlasnym ? 2 : 1));
    if (odczyt.Nastepny())
      return Uzycie{static_cast<int>(odczyt[0].AsInteger()), odczyt[1].AsString(), odczyt[2].AsInteger() != 0,
                    &pytanie != &kPytania[0]};
  }
  return std::nullopt;
}

TDmVLTNazwySkrocone::WynikUnikalnosci TDmVLTNazwySkrocone::SprawdzUnikalnosc(const QString& skrot,
                                                                             int wlasneId,
                                                                             bool dodatkowy) const {
  if (skrot.isEmpty()) return {-1, QStringLiteral("Pusta nazwa skrócona")};
  const auto uzycie = ZnajdzUzycie(skrot, wlasneId);
  if (!uzycie) return {-1, {}};
  QString komunikat = QStringLiteral("Skrót ") +
                      (dodatkowy ? QStringLiteral("kodu dodatkowego ") : QString()) + skrot +
                      QStringLiteral("' jest już używany przez ");
  if (uzycie->wKodzieDodatkowym)
    komunikat += QStringLiteral("przez jeden z kodów dodatkowych ") +
                 (uzycie->aktywny ? QString() : QStringLiteral("usuniętego ")) + QStringLiteral("towaru [");
  else
    komunikat += (uzycie->aktywny ? QString() : QStringLiteral("usunięty ")) + QStringLiteral("towar [");
  return {uzycie->towId, komunikat + uzycie->nazwa + u']'};
}

TDmVLTNazwySkrocone::Wynik TDmVLTNazwySkrocone::SprawdzWsrodKodow(const QString& skrot,
                                                                  const SkrotyTowaru& kody, int indeks) {
  const bool dodatkowy = indeks >= 0;
  const QString poczatek = PoczatekKomunikatu(skrot, dodatkowy);
  switch (kody.Znajdz(skrot, indeks)) {
    case Kolizja::Glowny:
      return {false, poczatek + QStringLiteral(" jest używany dla kodu głównego tego samego towaru")};
    case Kolizja::Dodatkowy:
      return {false, poczatek + QStringLiteral(" jest używany dla ") +
                         (dodatkowy ? QStringLiteral("innego ") : QString()) +
                         QStringLiteral("kodu dodatkowego tego samego towaru")};
    case Kolizja::Brak:
      break;
  }
  return {true, poczatek + QStringLiteral(" nie jest używany dla innych kodów tego samego towaru")};
}

// The name's words in the form and with the characters of a short name, not yet cut. Null for a name without
// words.
QString TDmVLTNazwySkrocone::Podstawa(const QString& nazwa) const {
  const std::vector<QStringView> slowa = Slowa(nazwa, m_reguly.inneSeparatory);
  if (slowa.empty()) return {};
  const bool odstepy = m_reguly.spacjeNaZnak != 0;
  QString tekst = Zlacz(slowa, nazwa.size(), odstepy);
  if (m_reguly.jakTworzyc == 1 || tekst.size() > m_reguly.maxDlugosc)
    tekst = Zlacz(slowa, kZnakowSkrotu, odstepy);

  QString podstawa;
  podstawa.reserve(tekst.size() + 1);
  for (QChar znak : tekst) {
    if (znak == u' ') znak = QChar(m_reguly.spacjeNaZnak);
    if (!m_reguly.polskieZnaki)
      if (const qsizetype i = kPolskie.indexOf(znak); i >= 0) znak = kBezOgonkow[i];
    if (!m_reguly.maleLitery) znak = znak.toUpper();
    // A word of dropped characters leaves two blanks side by side behind, which no short name may have.
    const bool podwojny = znak == u' ' && (podstawa.isEmpty() || podstawa.back() == u' ');
    if (m_reguly.Dozwolony(znak) && !podwojny) podstawa += znak;
  }
  return podstawa.isNull() ? QLatin1String("") : podstawa;
}

// What stands before a suffix of that length: the base cut to fit, or filled up to the least length.
QString TDmVLTNazwySkrocone::Poczatek(const QString& podstawa, int dlugoscPrzyrostka) const {
  const auto wypelnienie = [this]() -> QChar {
    if (m_reguly.spacjeNaZnak != 0 && !m_reguly.SpacjeZostaja()) return QChar(m_reguly.spacjeNaZnak);
    return m_reguly.znakiSpecjalne.isEmpty() ? QChar(u'0') : m_reguly.znakiSpecjalne.front();
  };
  QString poczatek = podstawa.left(std::max(m_reguly.maxDlugosc - dlugoscPrzyrostka, 0));
  while (poczatek.endsWith(u' ')) poczatek.chop(1);
  const int najmniej = std::max(m_reguly.minDlugosc - dlugoscPrzyrostka, 1);
  return poczatek.size() < najmniej ? poczatek.leftJustified(najmniej, wypelnienie()) : poczatek;
}

TDmVLTNazwySkrocone::Stan TDmVLTNazwySkrocone::StanKandydata(const QString& skrot, const Cel& cel) const {
  const size_t odcisk = Odcisk(skrot);
  if (m_nadane.contains(odcisk)) return Stan::Zajety;
  if (m_wstepne.contains(odcisk) || !Poprawny(skrot) || cel.kody.Znajdz(skrot, cel.indeks) != Kolizja::Brak)
    return Stan::Chwilowy;
  return cel.sprawdzajBaze && ZnajdzUzycie(skrot, cel.wlasneId) ? Stan::Zajety : Stan::Wolny;
}

QString TDmVLTNazwySkrocone::Nadaj(const QString& skrot) {
  m_wstepne.insert(Odcisk(skrot));
  return skrot;
}

std::optional<QString> TDmVLTNazwySkrocone::UtworzOdNumeru(const QString& podstawa, const Cel& cel,
                                                           int numer) {
  for (int proba = 0; proba < kProb; ++proba, ++numer) {
    QString przyrostek = QString::number(numer);
    if (m_reguly.spacjeNaZnak != 0) przyrostek.prepend(QChar(m_reguly.spacjeNaZnak));
    const QString kandydat = Poczatek(podstawa, static_cast<int>(przyrostek.size())) + przyrostek;
    if (StanKandydata(kandydat, cel) == Stan::Wolny) return Nadaj(kandydat);
  }
  return std::nullopt;
}

// All numbers with the same count of digits stand behind the same beginning, so what is known about a
// beginning holds for every name that is cut down to it.
std::optional<QString> TDmVLTNazwySkrocone::UtworzZNumerem(const QString& podstawa, const Cel& cel) {
  const bool pamietaj = cel.sprawdzajBaze && cel.wlasneId < 0;
  SprawdzoneNumery tylkoTeraz;
  SprawdzoneNumery& wszystkieSprawdzone = cel.sprawdzone ? *cel.sprawdzone : tylkoTeraz;
  int cyfr = 1;
  for (int pierwszy = 1; pierwszy <= kProb; pierwszy *= 10, ++cyfr) {
    QString poczatek = Poczatek(podstawa, cyfr + (m_reguly.spacjeNaZnak != 0 ? 1 : 0));
    if (m_reguly.spacjeNaZnak != 0) poczatek += QChar(m_reguly.spacjeNaZnak);
    const size_t klucz = KluczNumerow(poczatek, cyfr);
    Numery bezPamieci;
    Numery& znane = pamietaj ? m_numery[klucz] : bezPamieci;
    znane.od = std::max(znane.od, pierwszy);
    int& sprawdzone = wszystkieSprawdzone[klucz];
    QString kandydat;
    const auto sprobuj = [&](int numer) {
      kandydat = poczatek + QString::number(numer);
      sprawdzone = numer + 1;
      return StanKandydata(kandydat, cel);
    };
    for (auto numer = znane.zwolnione.lower_bound(sprawdzone); numer != znane.zwolnione.end();) {
      const Stan stan = sprobuj(*numer);
      if (stan == Stan::Wolny) return Nadaj(kandydat);
      numer = stan == Stan::Zajety ? znane.zwolnione.erase(numer) : std::next(numer);
    }
    bool ciagle = sprawdzone <= znane.od;
    for (int numer = std::max(znane.od, sprawdzone); numer < pierwszy * 10; ++numer) {
      const Stan stan = sprobuj(numer);
      if (stan == Stan::Wolny) return Nadaj(kandydat);
      ciagle = ciagle && stan == Stan::Zajety;
      if (ciagle) znane.od = numer + 1;
    }
  }
  return std::nullopt;
}

std::optional<QString> TDmVLTNazwySkrocone::Utworz(const QString& nazwa, const SkrotyTowaru& kody, int indeks,
                                                   int wlasneId, bool sprawdzajBaze, int numer,
                                                   SprawdzoneNumery* sprawdzone) {
  const QString podstawa = Podstawa(nazwa);
  if (podstawa.isNull()) return QString();
  const Cel cel{kody, indeks, wlasneId, sprawdzajBaze, sprawdzone};
  if (numer >= 0) return UtworzOdNumeru(podstawa, cel, numer);
  const QString bezNumeru = Poczatek(podstawa, 0);
  if (StanKandydata(bezNumeru, cel) == Stan::Wolny) return Nadaj(bezNumeru);
  return UtworzZNumerem(podstawa, cel);
}

void TDmVLTNazwySkrocone::Potwierdz() {
  if (m_wstepne.isEmpty()) return;
  m_nadane.unite(m_wstepne);
  m_nadaneWPaczce.unite(m_wstepne);
  m_wstepne.clear();
}

void TDmVLTNazwySkrocone::CofnijPaczke() {
  m_nadane.subtract(m_nadaneWPaczce);
  m_nadaneWPaczce.clear();
  m_wstepne.clear();
  m_numery.clear();
}

void TDmVLTNazwySkrocone::Zwolnij() {
  m_wstepne.clear();
}

// The number may begin anywhere in the digits at the end.
void TDmVLTNazwySkrocone::Oddaj(const QString& skrot) {
  int numer = 0;
  int waga = 1;
  for (int cyfr = 1; waga <= kProb && cyfr < skrot.size(); ++cyfr, waga *= 10) {
    const char16_t cyfra = skrot[skrot.size() - cyfr].unicode();
    if (cyfra < u'0' || cyfra > u'9') return;
    numer += (cyfra - u'0') * waga;
    const auto znane = m_numery.find(KluczNumerow(QStringView(skrot).chopped(cyfr), cyfr));
    if (cyfra != u'0' && znane != m_numery.end() && numer < znane->od) znane->zwolnione.insert(numer);
  }
}
