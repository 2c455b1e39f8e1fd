#pragma once

#include "platform/baza/dialekt.h"

// The family of the original servers, from their releases of 2016 on; of older ones only the outer join "*="
// is provided for. getdate() is its own word. A class of its own for the test that lets a file stand in for
// such a server.
class Tsql : public Dialekt {
 public:
  explicit Tsql(bool znaOuterJoin) : m_znaOuterJoin(znaOuterJoin) {}
  // A select that a server refuses unless it knows the outer join of the from clause.
  static const char* ProbaOuterJoin();

  QString Nazwa() const override { return QStringLiteral("T-SQL"); }
  std::string Przeloz(std::string_view sql) const override;
  std::string InsertZKluczem(const std::string& insert, const std::string& klucz) const override;
  bool ZnaOuterJoin() const override { return m_znaOuterJoin; }
  std::string Pierwsze(int ile, const std::string& select) const override;

  std::string UstawPunkt(int poziom) const override;
  std::string ZwolnijPunkt(int poziom) const override;
  std::string WycofDoPunktu(int poziom) const override;

  std::vector<std::string> UstawieniaSesji(int limitBlokadySekund) const override;
  std::string NazwaBazy() const override;
  std::string NumerTransakcji() const override;
  std::string OdczytJednejChwili() const override;
  std::string PoOdczycieChwili() const override;
  std::string BlokadaImportu() const override;
  std::string ZBlokadaWierszy(const std::string& select, const std::string& tabela,
                              const std::string& alias) const override;

  std::string TypAutoKlucz() const override;
  std::string TypCalkowity() const override;
  std::string TypDziesietny() const override;
  std::string TypTekst(int znakow) const override;
  std::string TypCzas() const override;
  std::vector<std::string> Wyzwalacz(const std::string& nazwa, const std::string& tabela,
                                     const std::string& klucz, std::string polecenie) const override;
  std::string ListaTabel() const override;
  std::string KolumnyBazy() const override;
  std::string IndeksyBazy() const override;
  std::string WyzwalaczeBazy() const override;

  std::optional<RodzajBleduBazy> RodzajBledu(long numer) const override;
  bool TekstyNarodowe() const override { return true; }

 private:
  bool m_znaOuterJoin;
};
