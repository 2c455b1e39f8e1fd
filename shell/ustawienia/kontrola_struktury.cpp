#include "ustawienia/kontrola_struktury.h"

#include <algorithm>

#include "exchange/struktura_pliku.h"

namespace {

bool BrakSeparatora(const StrukturaPliku& struktura) {
  return struktura.CBTypPliku == TypPliku::Rozdzielany && struktura.separator.isEmpty();
}

bool BrakDopisku(const StrukturaPliku& struktura, TypPliku typ) {
  return struktura.CBTypPliku == typ &&
         std::any_of(struktura.pola.begin(), struktura.pola.end(),
                     [](const WpisPola& wpis) { return wpis.Dopisek().isEmpty(); });
}

// An empty list describes no rate at all.
bool BrakOpisuStawki(const StrukturaPliku& struktura) {
  return struktura.rodzaj == RodzajRekordu::Towary && struktura.ZawieraPole(PoleTowaru::StawkaVat) &&
         (struktura.opisyVat.empty() ||
          std::any_of(struktura.opisyVat.begin(), struktura.opisyVat.end(),
                      [](const OpisVat& opis) { return opis.Opis().isEmpty(); }));
}

std::optional<QString> PowodOdmowy(const StrukturaPliku& struktura) {
  if (struktura.CBTypPliku == TypPliku::Zorvik) return std::nullopt;
  if (struktura.pola.empty()) return QStringLiteral("Nie zdefiniowano listy pól");
  if (BrakSeparatora(struktura)) return QStringLiteral("Nie zdefiniowano separatora");
  if (BrakDopisku(struktura, TypPliku::StalaSzerokosc))
    return QStringLiteral("Nie zdefiniowano szerokości pola");
  if (BrakDopisku(struktura, TypPliku::DBase)) return QStringLiteral("Nie zdefiniowano nazwy pola");
  if (BrakOpisuStawki(struktura)) return QStringLiteral("Nie zdefiniowano opisu stawki VAT");
  return std::nullopt;
}

}  // namespace

std::optional<Komunikat> SprawdzStrukture(const StrukturaPliku& struktura) {
  const std::optional<QString> powod = PowodOdmowy(struktura);
  if (!powod) return std::nullopt;
  return Komunikat{QStringLiteral("BŁĄD"), *powod};
}
