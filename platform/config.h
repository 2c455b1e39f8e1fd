#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <QHash>
#include <QString>

// One named parameter; every value is a text.
class TMCfgParam {
 public:
  TMCfgParam(QString nazwa, QString wartosc) : m_nazwa(std::move(nazwa)), m_wartosc(std::move(wartosc)) {}

  const QString& Nazwa() const { return m_nazwa; }
  const QString& Wartosc() const { return m_wartosc; }
  void UstawWartosc(QString wartosc) { m_wartosc = std::move(wartosc); }

  // The value as a whole number (blanks around it allowed); none when it is not one.
  std::optional<int> Calkowita() const;
  // "0" or "1"; none for any other text.
  std::optional<bool> Flaga() const;

 private:
  QString m_nazwa;
  QString m_wartosc;
};

using TMCfgParams = std::vector<TMCfgParam>;

// A configuration: named parameters in the order in which they were first set, each name once, letter case
// counts. Holds the program's settings as well as the product's system parameters.
class TMConfig {
 public:
  // A new name goes to the end, a name already there gets the new value in its old place.
  void Ustaw(const QString& nazwa, const QString& wartosc);
  // Null when there is no such parameter; valid until the next Ustaw.
  const TMCfgParam* ParamByName(const QString& nazwa) const;
  const TMCfgParams& Params() const& { return m_parametry; }
  const TMCfgParams& Params() const&& = delete;  // would not outlive the temporary
  bool CzyPusta() const { return m_parametry.empty(); }

  // Values by name; the given default when the parameter is missing or unreadable.
  QString Tekst(const QString& nazwa, const QString& domyslna = {}) const;
  int Calkowita(const QString& nazwa, int domyslna) const;
  bool Flaga(const QString& nazwa, bool domyslna) const;

 private:
  TMCfgParams m_parametry;
  QHash<QString, qsizetype> m_miejsca;
};

// The configuration file: Windows-1250, one parameter a line, lines end with CR LF. The writer pads the name
// to 35 characters and lets the value follow; the reader takes 30 characters as the name and the 100 after
// them as the value. So a name of more than 30 characters is not found again after reading, and a value is
// read back up to its 95th character.
namespace plik_konfiguracji {

// As the lines stand in the file. A line break inside a value would begin another parameter: it becomes a
// blank.
QString Tekst(const TMConfig& config);

// Adds what the bytes of a file hold; lines shorter than 35 characters are no parameters. A name met twice
// keeps the last value.
void Czytaj(std::string_view bajty, TMConfig& config);

// The reason when the file cannot be read; nothing is added then. Files over 16 MiB are no configuration.
std::optional<QString> Wczytaj(const QString& sciezka, TMConfig& config);

struct WynikZapisu {
  std::optional<QString>
      blad;  // the reason when the file could not be written; the old file is then untouched
  int znakowZastapionych = 0;  // characters that Windows-1250 lacks, written as "?"
};
WynikZapisu Zapisz(const QString& sciezka, const TMConfig& config);

}  // namespace plik_konfiguracji
