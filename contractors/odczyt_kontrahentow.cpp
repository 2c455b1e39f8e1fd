#include "contractors/odczyt_kontrahentow.h"

#include <span>

#include "model/bledy.h"
#include "model/kolejnosc_osob.h"
#include "model/zbieracz_osob.h"

namespace {

constexpr OpisPola kPola[] = {ZORVIK_POLA_KONTRAHENTA(ZORVIK_OPIS)};
constexpr auto kKontrahent = std::span(kPola).first(KolumnaKontrahenta::Zmiana);
constexpr OpisPola kSklep[] = {{"SklepId", TypPola::Calkowite}};

}  // namespace

OdczytKontrahentow::OdczytKontrahentow(TVLTBazaDanych& baza)
    : m_kontrahenci(baza, "Kontrahent", kKontrahent),
      m_sklepy(baza, "Sklep", kSklep),
      m_osoby(baza,
              std::string("select KontrId, Nazwisko from Osoba where KontrId between :Od and :Do"
                          " order by KontrId, ") +
                  KolejnoscOsob(baza),
              {TypPola::Calkowite, TypPola::Tekst}) {}

void OdczytKontrahentow::Strona(int od, int doId) {
  OtworzStrone({&m_kontrahenci, &m_sklepy, &m_osoby}, od, doId);
}

const DaneKontrahenta& OdczytKontrahentow::Wczytaj(int kontrId) {
  if (!m_kontrahenci.Siegnij(kontrId)) throw EVLTWDError(2001, nullptr, QString::number(kontrId));
  m_kontrahent.wiersz = &m_kontrahenci.Wiersz();
  m_kontrahent.sklep = m_sklepy.Siegnij(kontrId);
  ZbieraczOsob osoby(m_kontrahent.osoby);
  for (; m_osoby.Siegnij(kontrId); m_osoby.Dalej()) osoby.Dodaj(m_osoby.Wiersz()[1].AsString());
  return m_kontrahent;
}
