#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QFile>
#include <QString>

#include "exchange/komunikat.h"

// A dBase III table: random access to records, values as the bytes stored in them. Types are not interpreted
// and nothing is written. Layout: a 32-byte header, a 32-byte descriptor per field, the records (a deletion
// byte, then the fields without separators), one byte that ends the file. The header's record count is not
// used, the file's size is. The fields must fill the record: a table that is read askew would give wrong values
// without a word.
class PlikDBase {
 public:
  static constexpr int kNajwiecejPol = 100;
  static constexpr int kNajdluzszyRekord = 5000;  // bytes

  // False for a missing file, without a Komunikat; false with one when the table cannot be read.
  bool Open(const QString& sciezka, bool tylkoOdczyt = true);
  void Close();
  const std::optional<Komunikat>& Blad() const { return m_blad; }

  qint64 RecordCount() const { return m_rekordow; }
  // What the header says; nothing is read by it.
  qint64 HeaderRecordCount() const { return m_rekordowWNaglowku; }
  int FieldCount() const { return static_cast<int>(m_pola.size()); }
  // Empty outside 0 to FieldCount() - 1.
  std::string_view FieldName(int indeks) const;
  char FieldType(int indeks) const;
  const QString& FileName() const { return m_sciezka; }
  // Index of the first field of that name, without regard to case; -1 when there is none.
  int FieldIndex(std::string_view nazwa) const;

  // Loads record N, from 0. False outside the file or when it cannot be read.
  bool ReadRecord(qint64 numer);
  // The rest speaks of the record last loaded; views are valid until the next ReadRecord.
  bool IsDeleted() const { return !m_rekord.empty() && m_rekord.front() == '*'; }
  // The field's bytes up to the first zero byte, not trimmed; empty for an unknown field and for one that
  // does not lie within the record.
  std::string_view FieldValue(std::string_view nazwa) const { return FieldValue(FieldIndex(nazwa)); }
  std::string_view FieldValue(int indeks) const;

 private:
  struct Pole {
    std::string nazwa;
    char typ;
    size_t od;  // from the record's first byte
    size_t dlugosc;
    size_t dlugoscSzeroka;  // of a character field by two bytes, as some programs write it; of others the same
  };
  bool WczytajNaglowek();
  bool WczytajPola(qint64 ile);
  bool UzgodnijDlugosci();
  bool RekordJestKoncemPliku(qint64 numer);
  bool WczytajBlok(qint64 numer);
  bool Odmowa(const QString& powod);

  QFile m_plik;
  QString m_sciezka;
  qint64 m_dlugoscNaglowka = 0;
  qint64 m_dlugoscRekordu = 0;
  qint64 m_rekordow = 0;
  qint64 m_rekordowWNaglowku = 0;
  std::vector<Pole> m_pola;
  // Records are read many at a time.
  std::string m_blok;
  qint64 m_blokOd = 0;
  qint64 m_blokIle = 0;
  std::string_view m_rekord;
  std::optional<Komunikat> m_blad;
};
