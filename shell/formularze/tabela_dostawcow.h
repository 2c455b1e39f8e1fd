#pragma once

#include <vector>

#include "shell/formularze/tabela_szczegolow.h"

class DostawcyTowaru;
class TVLTBazaDanych;

// The suppliers of a good by tax number, with their names. Those without a number are shown and stay.
class TabelaDostawcow final : public TabelaSzczegolow {
 public:
  enum Kolumna { Nip, Nazwa };

  explicit TabelaDostawcow(QWidget* rodzic = nullptr);

  // Throws EBladBazy. Numbers that are typed later are looked up there as well.
  void Pokaz(TVLTBazaDanych& baza, const DostawcyTowaru& dostawcy);
  // Only what the person has changed; all numbers must be somebody's.
  void Wpisz(DostawcyTowaru& dostawcy) const;

 protected:
  void DopiszPusty() override { Dopisz(-1, {}, {}, true); }
  QString Wada(int wiersz) const override;

 private:
  void Dopisz(int kontrId, const QString& nip, const QString& nazwa, bool zNipem);
  void Szukaj(int wiersz);
  std::vector<int> ZNipem() const;

  TVLTBazaDanych* m_baza = nullptr;
  std::vector<int> m_poprzedni;
};
