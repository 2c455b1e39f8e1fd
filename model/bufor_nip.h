#pragma once

#include <functional>
#include <span>
#include <vector>

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringView>

class TVLTBazaDanych;

// Only the decimal digits of a tax number: the form in which tax numbers are compared.
QString NormalizujNip(QStringView nip);

// Contractors by tax number, read once for a run; with addresses, also where they are. Deleted contractors
// are among them.
class TVLTBuforNip {
 public:
  using Postep = std::function<bool(int przeczytanych)>;
  enum class Zawartosc { Nipy, NipyIAdresy };

  explicit TVLTBuforNip(Zawartosc zawartosc = Zawartosc::Nipy) : m_zawartosc(zawartosc) {}

  // Number of contractors: the end of the progress bar.
  static int IloscKontrahentow(TVLTBazaDanych& baza);
  // Reads all contractors; false when stopped (the buffer is then empty).
  bool Napelnij(TVLTBazaDanych& baza, const Postep& postep = {});
  // Reads them anew when another connection has written since. Called at the start of every write
  // transaction: inside it the buffer then says what the database would.
  void Odswiez(TVLTBazaDanych& baza);
  // A save was undone: the next Odswiez reads in any case.
  void Uniewaznij() { m_aktualny = false; }

  // Identifiers of the contractors with the number, in ascending order; empty for a number without digits.
  std::span<const int> Kontrahenci(QStringView nip) const;
  // The first of them, -1 when there is none.
  int Znajdz(QStringView nip) const;
  // Whether one of the contractors with the number has exactly this street and city. Of the contractors
  // without a number only street and city together, one directly behind the other, are compared.
  bool MaAdres(QStringView nip, const QString& ulica, const QString& miasto) const;

  // A contractor that was stored.
  void Dodaj(int kontrId, QStringView nip, const QString& ulica = {}, const QString& miasto = {});

 private:
  static QString KluczAdresu(const QString& cyfry, const QString& ulica, const QString& miasto);
  void Wyczysc();

  Zawartosc m_zawartosc;
  QHash<QString, std::vector<int>> m_kontrahenci;
  QSet<QString> m_adresy;
  bool m_aktualny = false;
  long long m_znacznik = 0;
};
