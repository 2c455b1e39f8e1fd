#include "model/bledy.h"

#include <utility>

#include "model/katalog_bledow.h"

using katalog_bledow::Katalog;

EVLTWDError::EVLTWDError(int kod, std::shared_ptr<const EMException> przyczyna, QString szczegol)
    : EVLTExceptionBase(kod, std::move(przyczyna)), m_szczegol(std::move(szczegol)) {
  katalog_bledow::Teksty teksty = katalog_bledow::Szukaj(Katalog::Dane, kod, m_szczegol);
  UstawTeksty(std::move(teksty.tytul), std::move(teksty.opis));
}

KlasaBledu EVLTWDError::Klasa() const {
  return katalog_bledow::SzukajZakresu(Katalog::Dane, MacCode()).klasa;
}

QString EVLTWDError::Modul() const {
  return QStringLiteral("WD");
}

QString EVLTWDError::Naglowek() const {
  return QStringView(katalog_bledow::SzukajZakresu(Katalog::Dane, MacCode()).naglowek).toString();
}

std::unique_ptr<EMException> EVLTWDError::Clone() const {
  return std::make_unique<EVLTWDError>(MacCode());
}

void EVLTWDError::Assign(const EMException& zrodlo) {
  EVLTExceptionBase::Assign(zrodlo);
  if (const auto* blad = dynamic_cast<const EVLTWDError*>(&zrodlo)) m_szczegol = blad->m_szczegol;
}

EVLTWinError::EVLTWinError(int kod, std::shared_ptr<const EMException> przyczyna, QString szczegol)
    : EVLTExceptionBase(kod, std::move(przyczyna)), m_szczegol(std::move(szczegol)) {
  katalog_bledow::Teksty teksty = katalog_bledow::Szukaj(Katalog::Okna, kod, m_szczegol);
  UstawTeksty(std::move(teksty.tytul), std::move(teksty.opis));
}

KlasaBledu EVLTWinError::Klasa() const {
  return katalog_bledow::SzukajZakresu(Katalog::Okna, MacCode()).klasa;
}

QString EVLTWinError::Modul() const {
  return QStringLiteral("Win");
}

QString EVLTWinError::Naglowek() const {
  return QStringView(katalog_bledow::SzukajZakresu(Katalog::Okna, MacCode()).naglowek).toString();
}

std::unique_ptr<EMException> EVLTWinError::Clone() const {
  return std::make_unique<EVLTWinError>(MacCode());
}

void EVLTWinError::Assign(const EMException& zrodlo) {
  EVLTExceptionBase::Assign(zrodlo);
  if (const auto* blad = dynamic_cast<const EVLTWinError*>(&zrodlo)) m_szczegol = blad->m_szczegol;
}
