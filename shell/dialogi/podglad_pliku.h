#pragma once

#include <vector>

#include <QStringList>

struct ParametryPolaczenia;
struct StrukturaPliku;

// The beginning of an import file as a run would read it.
struct PodgladPliku {
  static constexpr int kRekordow = 20;

  struct Wiersz {
    QStringList wartosci;   // one per column
    QString uwaga;          // why the run would stop at this record; usually empty
    QStringList zauwazone;  // one per column: what the run would tell of the value; usually empty
    QString wLinii;         // the same of the whole line
  };

  // Catalogue names of the fields the file carries, in the order of its columns.
  QStringList naglowki;
  std::vector<Wiersz> wiersze;
  // Why the file cannot be imported by this structure, in the words of the run. What can be read is there
  // nevertheless.
  QStringList powody;
  // What a run would tell of the records here and of the file; what depends on the database is not known
  // here.
  QStringList uwagi;
};

// Reads no more than the first records of the file, whatever its size, and nothing of a file of the database.
// Values longer than a person can see at a glance are cut.
PodgladPliku CzytajPodglad(const StrukturaPliku& struktura, const QString& plik,
                           const ParametryPolaczenia& baza);
