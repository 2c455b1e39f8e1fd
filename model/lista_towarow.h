#pragma once

#include "model/lista_elementow.h"
#include "model/towar.h"

// All goods by identifier: what an export walks through. Columns TowId, Kod, Nazwa, Aktywny.
class TDmVLTListaTowarow final : public TDmVLTListaElementow {
 public:
  TDmVLTListaTowarow(KontekstSesji& context, const OtoczenieTowarow& otoczenie);
  ~TDmVLTListaTowarow() override;

  // Of the current row.
  QString Kod() const;
  QString Nazwa() const;
  bool Aktywny() const;

 protected:
  void FillRowFromElement(const TDmVLTElement& element) override;
  std::unique_ptr<TDmVLTElement> CreateElement() override;

 private:
  OtoczenieTowarow m_otoczenie;
};
