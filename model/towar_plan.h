#pragma once

#include <optional>

#include "model/towar.h"

// A save of a good, worked out before its first statement: what is written beside the columns as they stand.
// Private to the goods record.
struct TDmVLTTowar::Plan {
  QString kod = {};                                 // main code as it is stored
  std::optional<KodyDodatkowe> kody = {};           // with the automatic code, when one is added
  std::optional<WartosciParametrow> wartosci = {};  // with those the category asks for
};
