#pragma once

#include "model/lista_elementow.h"

// All contractors by identifier, deleted ones included: what an export walks through. Columns KontrId and NIP
// (as entered): everything else of a contractor is read when its turn comes, so that a long list stays small.
class TDmVLTListaKontrahentow final : public TDmVLTListaElementow {
 public:
  explicit TDmVLTListaKontrahentow(KontekstSesji& context);
  ~TDmVLTListaKontrahentow() override;

  // Of the current row.
  QString NIP() const;

 protected:
  void FillRowFromElement(const TDmVLTElement& element) override;
  std::unique_ptr<TDmVLTElement> CreateElement() override;
};
