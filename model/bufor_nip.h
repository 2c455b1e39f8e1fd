#pragma once

#include <functional>
#include <span>
#include <vector>

#include <QHash>
#include <QString>
#include <QStringView>

class TVLTBazaDanych;

// Only the decimal digits of a tax number: the form in which tax numbers are compared.
QString NormalizujNip(QStringView nip);

// Contractors by tax number, read once for a run.
class TVLTBuforNip {
 public:
  using Postep = std::function<bool(int przeczytanych)>;

  // Number of contractors: the end of the progress bar.
  static int IloscKontrahentow(TVLTBazaDanych& baza);
  // Reads all contractors that have a tax number; false when stopped (the buffer is then empty).
  bool Napelnij(TVLTBazaDanych& baza, const Postep& postep = {});

  // Identifiers of the contractors with the number, in ascending order; empty for a number without digits.
  std::span<const int> Kontrahenci(QStringView nip) const;
  // The first of them, -1 when there is none.
  int Znajdz(QStringView nip) const;
  void Dodaj(int kontrId, QStringView nip);

 private:
  QHash<QString, std::vector<int>> m_kontrahenci;
};
