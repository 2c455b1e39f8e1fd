#include "run/przebieg.h"

#include <exception>

#include "model/kontekst.h"
#include "platform/baza/sesja.h"
#include "run/operator.h"
#include "run/pliki_zastrzezone.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString Tekst(std::u16string_view tekst) {
  return QString::fromUtf16(tekst.data(), static_cast<qsizetype>(tekst.size()));
}

// Faults that say of what was committed before that it may be lost.
bool Niepewne(std::optional<RodzajBleduBazy> rodzaj) {
  return rodzaj == RodzajBleduBazy::Nietrwaly || rodzaj == RodzajBleduBazy::Zniknela;
}

}  // namespace

class Przebieg::PostepZapamietujacy final : public IPostep {
 public:
  PostepZapamietujacy(IPostep& postep, std::vector<Komunikat>& komunikaty)
      : m_postep(postep), m_komunikaty(komunikaty) {}

  void Faza(const QString& tekst, long long maksimum) override { m_postep.Faza(tekst, maksimum); }
  void Pozycja(long long pozycja) override { m_postep.Pozycja(pozycja); }
  void DopiszLiczbe(long long liczba) override { m_postep.DopiszLiczbe(liczba); }
  void Gotowe() override { m_postep.Gotowe(); }
  void Pokaz(const QString& tytul, const QString& tekst) override {
    m_komunikaty.push_back({tytul, tekst});
    m_postep.Pokaz(tytul, tekst);
  }
  void PokazUwage(const QString& linia) override { m_postep.PokazUwage(linia); }
  void Koniec() override { m_postep.Koniec(); }

 private:
  IPostep& m_postep;
  std::vector<Komunikat>& m_komunikaty;
};

Przebieg::Przebieg(const ParametryPrzebiegu& parametry, const OpisPrzebiegu& opis)
    : m_parametry(parametry),
      m_opis(opis),
      m_zapamietujacy(std::make_unique<PostepZapamietujacy>(parametry.postep, m_komunikaty)),
      m_postep(*m_zapamietujacy),
      m_raport(m_postep, m_liczniki),
      m_paczka(parametry.sesja.baza, m_liczniki, m_raport, m_uwagi),
      m_oper(parametry.oper, m_paczka) {}

Przebieg::~Przebieg() = default;

WynikPrzebiegu Przebieg::Wykonaj() {
  const auto poczatek = std::chrono::steady_clock::now();
  KoniecPrzebiegu koniec = KoniecPrzebiegu::Odmowa;
  m_parametry.oper.UstawPostepPrzebiegu(&m_postep);
  try {
    if (const auto odmowa = Otworz())
      Pokaz(*odmowa);
    else
      koniec = Prowadz();
  } catch (const EBladBazy& blad) {
    koniec = PoWyjatku(blad.Naglowek(), blad.Tresc(), blad.Rodzaj());
  } catch (const EMException& blad) {
    koniec = PoWyjatku(blad.Naglowek(), blad.Tresc());
  } catch (const std::exception& blad) {
    koniec = PoWyjatku(u"Wystąpił błąd"_s, QString::fromLocal8Bit(blad.what()));
  }
  Zakoncz(koniec);
  m_parametry.oper.UstawPostepPrzebiegu(nullptr);
  const std::chrono::duration<double> czas = std::chrono::steady_clock::now() - poczatek;
  return {koniec, m_liczniki, std::move(m_komunikaty), m_raport.Sciezka(), czas.count(), m_uwagi.Lista()};
}

std::optional<Komunikat> Przebieg::Otworz() {
  const bool zapis = m_opis.plikPominietych.empty();  // whoever skips no records writes the file
  if (auto odmowa = OdmowaPlikuPrzebiegu(m_parametry, zapis ? KierunekPliku::Zapis : KierunekPliku::Odczyt))
    return odmowa;
  if (auto odmowa = OtworzPlik()) return odmowa;
  if (zapis) return std::nullopt;
  const QString& wybrany = m_parametry.katalogPominietych;
  const QString katalog = wybrany.isEmpty() ? RaportProblemow::KatalogProgramu() : wybrany;
  const QString nazwa = Tekst(m_opis.plikPominietych);
  if (auto odmowa = OdmowaPlikuPominietych(m_parametry, katalog + u'/' + nazwa)) return odmowa;
  return m_raport.Otworz(katalog, nazwa, RaportProblemow::KatalogZapasowy());
}

KoniecPrzebiegu Przebieg::Prowadz() {
  m_postep.Faza(u"łączenie z bazą VLT Win"_s);
  if (!m_parametry.sesja.baza.Polaczona()) m_parametry.sesja.baza.Polacz();
  m_postep.Gotowe();
  if (const auto koniec = Przygotuj()) return *koniec;
  const KoniecPrzebiegu koniec = Cialo();
  m_paczka.Zatwierdz();
  m_parametry.sesja.baza.Utrwal();
  return koniec;
}

KoniecPrzebiegu Przebieg::PoWyjatku(const QString& naglowek, const QString& tekst,
                                    std::optional<RodzajBleduBazy> rodzaj) {
  m_paczka.UratujCoSieDa();
  m_niepewne = Niepewne(rodzaj) ? rodzaj : SprobujUtrwalic();
  if (m_niepewne == RodzajBleduBazy::Zniknela) m_liczniki.Wyzeruj();
  PoBledzie();
  OglosBlad(naglowek, tekst);
  return KoniecPrzebiegu::Blad;
}

// After another fault: what the run has left is told only as far as it is there, and the disk has it.
std::optional<RodzajBleduBazy> Przebieg::SprobujUtrwalic() {
  try {
    m_parametry.sesja.baza.Utrwal();
  } catch (const EBladBazy& blad) {
    if (Niepewne(blad.Rodzaj())) return blad.Rodzaj();
  }
  return std::nullopt;
}

KoniecPrzebiegu Przebieg::PrzerwanoPrzezOperatora() {
  m_postep.Faza(u"Aktualizacja przerwana przez operatora"_s);
  m_postep.Gotowe();
  return KoniecPrzebiegu::Przerwano;
}

void Przebieg::OglosBlad(const QString& naglowek, const QString& tekst) {
  m_postep.Pokaz(naglowek, tekst + u'\n' + CoZostalo());
}

QString Przebieg::CoZostalo() const {
  if (m_niepewne == RodzajBleduBazy::Zniknela)
    return u"Niczego z tego przebiegu nie można uznać za zapisane. Przywróć plik bazy i powtórz import."_s;
  const long long rekordow = m_liczniki[Licznik::Rekordy];
  if (rekordow == 0) return u"Nie zapisano w bazie wyniku żadnego rekordu."_s;
  const QString zapisano =
      u"Zapisano w bazie wynik pracy do rekordu "_s + QString::number(rekordow) + u" włącznie."_s;
  return m_niepewne ? zapisano +
                          u"\nNie ma jednak pewności, że przetrwa to wyłączenie komputera. Sprawdź dysk "
                          u"i powtórz import."_s
                    : zapisano;
}

void Przebieg::Zakoncz(KoniecPrzebiegu koniec) {
  if (koniec == KoniecPrzebiegu::Odmowa) {
    ZamknijPlik();
    m_raport.Zamknij();
    m_postep.Koniec();
    return;
  }
  m_postep.Faza(Tekst(m_opis.zamykaniePliku));
  ZamknijPlik();
  m_raport.Zamknij();
  m_postep.Gotowe();
  if (koniec != KoniecPrzebiegu::Blad) m_postep.Pokaz(u"Koniec"_s, Tekst(m_opis.zakonczono));
  PrzedPodsumowaniem();
  for (const Uwaga& uwaga : m_uwagi.Lista()) m_postep.PokazUwage(uwaga.Linia());
  for (const PozycjaPodsumowania& pozycja : m_opis.podsumowanie) {
    m_postep.Faza(Tekst(pozycja.tekst));
    m_postep.DopiszLiczbe(m_liczniki[pozycja.licznik]);
    m_postep.Gotowe();
  }
  m_postep.Koniec();
}
