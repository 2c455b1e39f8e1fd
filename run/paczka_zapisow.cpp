#include "run/paczka_zapisow.h"

#include <thread>

#include "platform/baza/sesja.h"
#include "run/liczniki.h"
#include "run/raport_problemow.h"
#include "run/uwagi.h"

void PaczkaZapisow::PrzedRekordem() {
  if (m_otwarta && (m_rekordow >= kNajwiecejRekordow || Zegar::now() - m_poczatek >= kNajdluzej)) {
    Zatwierdz();
    UstapInnym();
  }
  Otworz();
  m_baza.NowyRekord();
  ++m_rekordow;
}

void PaczkaZapisow::Otworz() {
  if (m_otwarta) return;
  m_baza.GrupujZapisy(!m_pojedynczo);
  m_baza.StartTransakcji();
  m_otwarta = true;
  m_rekordow = 0;
  m_poczatek = Zegar::now();
  const long long znacznik = m_baza.ZnacznikObcychZmian();
  const bool obceZmiany = m_znacznik != znacznik;
  m_znacznik = znacznik;
  if (PoOtwarciu) PoOtwarciu(obceZmiany);
}

void PaczkaZapisow::Zatwierdz() {
  if (m_otwarta) {
    try {
      if (!m_baza.GetCzyWTransakcji())
        throw EBladBazy(RodzajBleduBazy::Inny, QStringLiteral("Baza wycofała transakcję"), {});
      m_baza.KoniecTransakcji();
    } catch (...) {
      Porzuc();
      throw;
    }
    m_otwarta = m_pojedynczo = false;
    ++m_zakonczonych;
    if (PoZatwierdzeniu) PoZatwierdzeniu();
  }
  m_liczniki.Zatwierdz();
  m_raport.Zatwierdz();
  m_uwagi.Zatwierdz();
}

void PaczkaZapisow::Wycofaj() noexcept {
  Porzuc();
  m_znacznik.reset();
  ++m_zakonczonych;
}

void PaczkaZapisow::UratujCoSieDa() noexcept {
  try {
    Zatwierdz();
  } catch (...) {
    // The fault that ended the run is the one to tell; this one follows from it.
    Porzuc();
  }
}

void PaczkaZapisow::Porzuc() noexcept {
  m_otwarta = false;
  m_baza.WycofTransakcji();
  m_liczniki.Porzuc();
  m_raport.Porzuc();
  m_uwagi.Porzuc();
}

void PaczkaZapisow::UstapInnym() {
  if (Zegar::now() - m_ostatniaPrzerwa < kPrzerwaCo) return;
  std::this_thread::sleep_for(kPrzerwa);
  m_ostatniaPrzerwa = Zegar::now();
}

template <typename Pytanie>
auto OperatorPaczki::PozaPaczka(Pytanie pytanie) {
  // Nobody answers: nobody has to be waited for.
  const bool odloz = m_oper.JestOsoba() && m_paczka.Otwarta();
  if (odloz) m_paczka.Zatwierdz();
  auto odpowiedz = pytanie();
  if (odloz) m_paczka.Otworz();
  return odpowiedz;
}

OdpowiedzLiczbaPol OperatorPaczki::LiczbaPol(const Komunikat& pytanie) {
  return PozaPaczka([&] { return m_oper.LiczbaPol(pytanie); });
}

Poprawka OperatorPaczki::Popraw(TDmVLTElement& rekord, const OdmowaZapisu& odmowa) {
  return PozaPaczka([&] { return m_oper.Popraw(rekord, odmowa); });
}

bool OperatorPaczki::CzyTak(const Komunikat& pytanie, bool bezpieczna) {
  return PozaPaczka([&] { return m_oper.CzyTak(pytanie, bezpieczna); });
}

std::optional<QString> OperatorPaczki::PodajTekst(const Komunikat& pytanie) {
  return PozaPaczka([&] { return m_oper.PodajTekst(pytanie); });
}
