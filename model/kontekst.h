#pragma once

#include <functional>
#include <memory>

class TDmVLTElement;
class TVLTBazaDanych;
class ParametrySystemu;

// An edit form of one record, as the model sees it. Forms live above; the model only asks for the answer.
class TFmVLTFormularzElementu {
 public:
  virtual ~TFmVLTFormularzElementu() = default;
  // Shows the form and waits; true when the person accepted the record.
  virtual bool PokazModalnie() = 0;
};

// The owning session of records and lists: the connection and what all records of one session share.
// Everything is held by reference; the owner outlives the records.
struct KontekstSesji {
  TVLTBazaDanych& baza;
  const ParametrySystemu& parametry;
  // Makes the edit form for a record; empty when nobody sits at a screen.
  std::function<std::unique_ptr<TFmVLTFormularzElementu>(TDmVLTElement&)> fabrykaFormularzy = {};
};
