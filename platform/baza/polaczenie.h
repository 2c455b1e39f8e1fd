#pragma once

#include <optional>

#include <QString>
#include <QStringList>

class Dialekt;

// Where a database is and how it is reached.
struct ParametryPolaczenia {
  enum class Rodzaj { Sqlite, Odbc };

  Rodzaj rodzaj = Rodzaj::Sqlite;
  // Sqlite: path of the database file. Odbc: a connection string ("DSN=sklep;UID=..."), the name of a data
  // source, or "@PATH", a file whose first line holds either.
  QString cel;
  bool tworz = false;           // create the file when it is missing; otherwise a missing file is an error
  int limitBlokadySekund = 15;  // how long to wait for somebody else's lock
  // Test seam: the language of an embedded database that stands in for a server; null: its own. Its texts
  // must be such as the embedded database runs when Przeloz has seen them.
  const Dialekt* jezyk = nullptr;

  // The files that make up an embedded database, whether or not they exist at the moment: the database and
  // what SQLite keeps beside it, which is where a link leads.
  QStringList Pliki() const;
  // Those of them that a connection keeps open; a rollback journal comes and goes.
  QStringList PlikiOtwarte() const;
  // For people: without a password.
  QString Opis() const;
  // True when the text itself holds a password, which everybody could read in the list of processes.
  bool MaHaslo() const;
  // Adds a password to the text of a server's connection; an empty one changes nothing.
  void UstawHaslo(const QString& haslo);

  // Reads "PATH", "sqlite:PATH" or "odbc:TARGET"; nothing for an empty text.
  static std::optional<ParametryPolaczenia> ZTekstu(const QString& tekst);
  // What ZTekstu reads, with a path that holds wherever the program is started. May hold a password.
  QString Tekst() const;

  // The remembered connection: the first line of polaczenie.cfg in the user's configuration folder.
  static std::optional<ParametryPolaczenia> Domyslne();
  static QString PlikDomyslnych();
  // Remembers this connection there, in a file that its user alone can read. The reason when it could not be
  // written.
  std::optional<QString> Zapamietaj() const;
};
