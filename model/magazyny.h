#pragma once

#include "model/slowniki.h"

// Warehouses: 2835 no name, 2836 name used.
class TDmVLTMagazyn final : public TDmVLTWpisSlownika {
 public:
  explicit TDmVLTMagazyn(KontekstSesji& context);
};

// All warehouses by name, the order in which people choose one.
class TDmVLTListaMagazynow final : public TDmVLTListaSlownika {
 public:
  explicit TDmVLTListaMagazynow(KontekstSesji& context);

 protected:
  std::unique_ptr<TDmVLTElement> CreateElement() override;
};
