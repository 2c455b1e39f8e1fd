#pragma once

#include <optional>

#include <QString>
#include <QStringList>

// Where a database is and how it is reached.
struct ParametryPolaczenia {
  enum class Rodzaj { Sqlite };

  Rodzaj rodzaj = Rodzaj::Sqlite;
  QString cel;                  // path of the database file
  bool tworz = false;           // create the file when it is missing; otherwise a missing file is an error
  int limitBlokadySekund = 15;  // how long to wait for somebody else's lock

  // The files that make up an embedded database, whether or not they exist at the moment: the database and
  // what SQLite keeps beside it.
  QStringList Pliki() const;

  // Reads "PATH" or "sqlite:PATH"; nothing for an empty text or a kind that is not supported.
  static std::optional<ParametryPolaczenia> ZTekstu(const QString& tekst);
  // What ZTekstu reads, with a path that holds wherever the program is started.
  QString Tekst() const;

  // The remembered connection: the first line of polaczenie.cfg in the user's configuration folder.
  static std::optional<ParametryPolaczenia> Domyslne();
  static QString PlikDomyslnych();
  // Remembers this connection there, in a file that its user alone can read. The reason when it could not be
  // written.
  std::optional<QString> Zapamietaj() const;
};
