#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include <QString>

#include "platform/baza/blad_bazy.h"
#include "platform/baza/polaczenie.h"
#include "platform/baza/wartosc.h"

class Dialekt;
class Polecenie;
class Silnik;
class TKMQuery;
class TMConfig;

// Rows of one running select, read forwards. The statement is given back when the cursor is destroyed, so
// that no read stays open behind it: keep cursors short-lived.
class Odczyt {
 public:
  Odczyt(Odczyt&& inny) noexcept;
  Odczyt(const Odczyt&) = delete;
  Odczyt& operator=(const Odczyt&) = delete;
  ~Odczyt();

  // Moves to the next row (first call: the first); false after the last one.
  bool Nastepny();
  // Value of a column of the current row, in the order of the column kinds given to Otworz.
  const Wartosc& operator[](std::size_t kolumna) const;

 private:
  friend class TVLTBazaDanych;
  Odczyt(Silnik& silnik, std::shared_ptr<Polecenie> polecenie);
  Silnik* m_silnik;
  std::shared_ptr<Polecenie> m_polecenie;
};

// A session with the back-office database. Used by one thread at a time. Statements are texts with ":Name"
// placeholders, prepared once and kept; values are always bound, never part of the text.
// Every failure of the database leaves as EBladBazy; use before Polacz as EBladBazy of kind Polaczenie.
class TVLTBazaDanych {
 public:
  TVLTBazaDanych();
  explicit TVLTBazaDanych(ParametryPolaczenia parametry);
  ~TVLTBazaDanych();
  TVLTBazaDanych(const TVLTBazaDanych&) = delete;
  TVLTBazaDanych& operator=(const TVLTBazaDanych&) = delete;

  // Takes the connection that the installation remembers (the file polaczenie.cfg); false when there is none.
  bool WczytajDomyslnePolaczenie();
  void UstawPolaczenie(ParametryPolaczenia parametry);
  const ParametryPolaczenia& Parametry() const;
  void Polacz();
  void Odlacz();
  // False also when the server has ended the connection or the file of the database is gone.
  bool Polaczona() const;
  // The database's name as shown in the window's caption; empty while not connected.
  QString Nazwa() const;
  const Dialekt& Jezyk() const;
  // Whether a table of the database has the column, whatever the case of their names. The catalogue is read
  // once for a connection.
  bool MaKolumne(const char* tabela, const char* kolumna);

  // Runs a statement that returns no rows; returns the number of rows it touched.
  long long ExecSQL(std::string_view sql, std::initializer_list<Parametr> parametry = {});
  long long ExecSQL(std::string_view sql, std::span<const Parametr> parametry);
  // Inserts one row with an automatic key and returns the key: "insert into T (columns) ..." without the
  // column `klucz`. Written at once.
  int WstawOdRazu(const char* klucz, std::string_view sql, std::initializer_list<Parametr> parametry);
  int WstawOdRazu(const char* klucz, std::string_view sql, std::span<const Parametr> parametry);
  // The automatic key of the last row that this session inserted with one; -1 before the first.
  int PobierzAutoId() const;
  // Inserts a row whose number nobody asks for. While writes are grouped it may wait for others: it is
  // written before the next statement of any other kind and before the commit, in the order that
  // KolejkaZapisow keeps. A group that is refused leaves as EBladBazy of kind Grupa and spoils the
  // transaction.
  void Wstaw(std::string_view sql, std::initializer_list<Parametr> parametry);
  // The same for a row of `tabela` with an automatic key, which is returned.
  int WstawZKluczem(const char* tabela, const char* klucz, std::string_view sql,
                    std::span<const Parametr> parametry);
  // Writes over the row with a key: "update T set ... where K = :K and ...". It may wait in the same way, but
  // no second one for the same row. False when no row has the key; of one that waits nobody knows: the caller
  // has the row locked or does not care.
  bool Popraw(std::string_view sql, std::span<const Parametr> parametry);
  bool Popraw(std::string_view sql, std::initializer_list<Parametr> parametry);
  // What is written from here on belongs to another record: its writes keep their order among themselves.
  void NowyRekord();
  // Whether writes of the next transactions are grouped, where the server is worth it.
  void GrupujZapisy(bool grupuj);

  // Starts a select whose columns have the given kinds.
  Odczyt Otworz(std::string_view sql, std::initializer_list<TypPola> kolumny,
                std::initializer_list<Parametr> parametry = {});
  Odczyt Otworz(std::string_view sql, std::span<const TypPola> kolumny, std::span<const Parametr> parametry);
  // Gives a dataset this session; see TKMQuery.
  void PowiazQuery(TKMQuery& query);

  // A write transaction; on SQLite an immediate one, so that a lock is met here and not in the middle.
  void StartTransakcji();
  void KoniecTransakcji();
  // Never throws: a rollback is what is done when something already failed.
  void WycofTransakcji() noexcept;
  // A transaction that only reads; see OdczytJednejChwili for the usual way.
  void RozpocznijOdczyt();
  void ZakonczOdczyt();
  // Asked of the database, which may have ended the transaction by itself (a full disk).
  bool GetCzyWTransakcji() const;
  // Tells the open write transaction from every other one of this session; 0 while none is open.
  long long Transakcja() const;
  // Savepoints inside an open transaction; see JednostkaZapisu for the usual way.
  void UstawPunkt(int poziom);
  void ZwolnijPunkt(int poziom);
  // Never throws; when the database cannot undo the unit alone, the whole transaction is rolled back.
  void WycofDoPunktu(int poziom) noexcept;
  // Whether a unit is open: undoing it gives back the locks that were taken inside.
  bool WJednostce() const;

  // A number that changes whenever another connection has committed a change since it was last asked, and
  // with every new connection of this session. Constant between StartTransakcji and KoniecTransakcji.
  long long ZnacznikObcychZmian();
  // Number of transactions committed by this session; a counter for the benchmark and the tests.
  long long LiczbaZatwierdzen() const;
  // Makes what was committed durable; waits for no other connection. EBladBazy: of kind Nietrwaly when the
  // disk did not confirm it, of kind Zniknela when the database is no longer the one that was opened. A write
  // transaction meets both when it begins, the second also when it is committed.
  void Utrwal();
  // Copies an embedded database, as it is at this moment, into an existing empty file, while others may go on
  // working. `postep` is told of pages copied and of all; false from it stops the copying, which then returns
  // false. Neither waits for the disk nor removes a half copy.
  using PostepKopii = std::function<bool(long long zrobionych, long long wszystkich)>;
  bool KopiujDo(const QString& plik, const PostepKopii& postep);

  // One line of the change log DziennikZmian: table code, text, up to two identifiers (-1: none).
  void RejestrujZmiane(int tabela, const QString& opis, int id1, int id2);

  // The named configuration of table Konfiguracja. Loading adds to the object (a name already there is
  // replaced); saving replaces the stored configuration in one transaction, in the object's order.
  void WczytajKonfiguracje(const QString& nazwa, TMConfig& config);
  void ZapiszKonfiguracje(const QString& nazwa, const TMConfig& config);

  // Test seam: called with every statement text before it runs; may throw.
  using Podsluch = std::function<void(std::string_view sql)>;
  void UstawPodsluch(Podsluch podsluch);

 private:
  struct Wnetrze;
  std::unique_ptr<Wnetrze> m;
};
