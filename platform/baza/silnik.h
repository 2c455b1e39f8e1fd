#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <QString>

#include "platform/baza/blad_bazy.h"
#include "platform/baza/wartosc.h"

namespace soci {
class soci_error;
}

class Dialekt;
class Polecenie;
struct ParametryPolaczenia;

// Pages copied, and those of the whole; false stops the copying.
using PostepKopii = std::function<bool(long long zrobionych, long long wszystkich)>;

// One open connection to a database of one kind, with its prepared statements: what the session does
// differently for an embedded file and for a server. Internal to the session.
class Silnik {
 public:
  using Podsluch = std::function<void(std::string_view sql)>;

  // `podsluch` belongs to the session and may change while the connection lives.
  explicit Silnik(const Podsluch& podsluch);
  virtual ~Silnik();
  Silnik(const Silnik&) = delete;
  Silnik& operator=(const Silnik&) = delete;

  virtual const Dialekt& Jezyk() const = 0;
  virtual QString NazwaBazy() const = 0;

  // Runs the common form of a statement, prepared once for the text and the kinds of its values. A select
  // stands before its first row; the statement is given back by Zwolnij.
  std::shared_ptr<Polecenie> Wykonaj(std::string_view sql, std::span<const TypPola> kolumny,
                                     std::span<const Parametr> parametry);
  // Moves a select to its next row; false after the last one.
  bool Nastepny(Polecenie& polecenie);
  // The first column of the first row; null without rows.
  Wartosc Zapytaj(std::string_view sql, TypPola typ = TypPola::Calkowite);

  virtual void Rozpocznij() = 0;
  virtual void Zatwierdz() = 0;
  virtual void Wycofaj() = 0;
  // A transaction of reads, all from one moment; nobody waits for it, and there is nothing to commit.
  virtual void RozpocznijOdczyt() = 0;
  virtual void ZakonczOdczyt();
  virtual bool WTransakcji() const = 0;
  // The server or the database file is gone: only a new connection helps.
  virtual bool Zerwany() const { return false; }
  void UstawPunkt(int poziom);
  void ZwolnijPunkt(int poziom);
  virtual void WycofDoPunktu(int poziom);

  virtual long long ZnacznikObcychZmian() = 0;
  virtual void Utrwal() {}
  // See TVLTBazaDanych.
  virtual bool KopiujDo(const QString& plik, const PostepKopii& postep);

  // Throws what a failure below means.
  [[noreturn]] void Rzuc(const soci::soci_error& blad, std::string_view sql);

 protected:
  // Called once for every failure, so that an engine knows what became of its transaction.
  virtual PrzyczynaBledu Rozpoznaj(const soci::soci_error& blad) = 0;
  virtual std::shared_ptr<Polecenie> Przygotuj(const std::string& sql, std::span<const TypPola> kolumny,
                                               std::span<const Parametr> parametry) = 0;
  // Runs a statement that steers the transaction or the connection; nothing for an empty text.
  virtual void Steruj(const std::string& sql);
  void Oglos(std::string_view sql) const;
  // Before the connection goes.
  void PorzucPolecenia() { m_polecenia.clear(); }

 private:
  std::shared_ptr<Polecenie> Wolne(std::string_view sql, std::span<const TypPola> kolumny,
                                   std::span<const Parametr> parametry);

  const Podsluch& m_podsluch;
  std::unordered_multimap<std::string, std::shared_ptr<Polecenie>> m_polecenia;
  std::string m_klucz;
};

// Both connect; EBladBazy when they cannot.
std::unique_ptr<Silnik> PolaczSqlite(const ParametryPolaczenia& parametry, const Silnik::Podsluch& podsluch);
std::unique_ptr<Silnik> PolaczOdbc(const ParametryPolaczenia& parametry, const Silnik::Podsluch& podsluch);
