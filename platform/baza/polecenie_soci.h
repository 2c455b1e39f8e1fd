#pragma once

#include <memory>

#include "platform/baza/polecenie.h"

namespace soci {
class session;
}

// A statement of any server that SOCI reaches.
class PolecenieSoci final : public Polecenie {
 public:
  PolecenieSoci(soci::session& sesja, std::string sql, std::span<const TypPola> kolumny,
                std::span<const Parametr> parametry);
  ~PolecenieSoci() override;

  void Wykonaj(std::span<const Parametr> parametry) override;
  bool Nastepny() override;
  long long Dotknietych() override;
  void Zwolnij() noexcept override;

 private:
  struct Wnetrze;
  void Przypisz(std::span<const Parametr> parametry);

  std::vector<Wartosc> m_parametry;
  std::unique_ptr<Wnetrze> m;
};
