#include "platform/baza/transakcja.h"

#include "platform/baza/sesja.h"

namespace {
// Savepoints of one connection nest like calls do; a thread uses one session at a time.
thread_local int t_glebokosc = 0;
}  // namespace

JednostkaZapisu::JednostkaZapisu(TVLTBazaDanych& baza) : m_baza(baza), m_poziom(0) {
  if (m_baza.GetCzyWTransakcji()) {
    m_baza.UstawPunkt(t_glebokosc + 1);
    m_poziom = ++t_glebokosc;
  } else {
    m_baza.StartTransakcji();
  }
}

JednostkaZapisu::~JednostkaZapisu() {
  if (m_otwarta) {
    if (m_poziom == 0)
      m_baza.WycofTransakcji();
    else
      m_baza.WycofDoPunktu(m_poziom);
  }
  if (m_poziom != 0) --t_glebokosc;
}

void JednostkaZapisu::Zatwierdz() {
  if (m_poziom == 0)
    m_baza.KoniecTransakcji();
  else
    m_baza.ZwolnijPunkt(m_poziom);
  m_otwarta = false;
}

OdczytJednejChwili::OdczytJednejChwili(TVLTBazaDanych& baza)
    : m_baza(baza), m_wlasny(!baza.GetCzyWTransakcji()) {
  if (m_wlasny) m_baza.RozpocznijOdczyt();
}

// What was read stays read, however the end goes.
OdczytJednejChwili::~OdczytJednejChwili() {
  if (m_wlasny) try {
      m_baza.ZakonczOdczyt();
    } catch (...) {
    }
}
