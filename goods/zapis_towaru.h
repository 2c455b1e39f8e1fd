#pragma once

#include <QString>

class EVLTWDError;
class TDmVLTTowar;
struct KontekstImportu;

// Saves a good as often as the operator corrects it, and tells the goods buffer when the save has succeeded.
class ZapisTowaru {
 public:
  ZapisTowaru(KontekstImportu& import, TDmVLTTowar& towar) : m_import(import), m_towar(towar) {}

  enum class Wynik { Zapisany, Pominiety, Stop };
  // `rezygnacja`: what the report says when the operator gives the good up.
  Wynik Zapisz(const QString& rezygnacja);

 private:
  void ZapiszIPowiadom();
  bool WyreczWPoprawianiu(const EVLTWDError& odmowa);
  bool PoprawSkroty();

  KontekstImportu& m_import;
  TDmVLTTowar& m_towar;
};
