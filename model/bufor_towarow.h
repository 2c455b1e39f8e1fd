#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <QString>

class TVLTBazaDanych;

// The in-memory index of all goods: main and additional codes, short names and names, each text kept only as
// a 64-bit fingerprint. A miss is certain as long as nobody else has written to the database; a hit is a
// candidate which the caller confirms in the database by identifier. Filled by the first run of a program,
// kept for later ones; it changes only after the change was stored, so that memory and database agree.
class TVLTBuforTowarow {
 public:
  // Called now and then with the number of goods read so far; false asks to stop.
  using Postep = std::function<bool(int przeczytanych)>;

  // Reads all goods; false when stopped (the buffer is then empty and not ready).
  bool Napelnij(TVLTBazaDanych& baza, const Postep& postep = {});
  bool Gotowy() const { return m_gotowy; }
  // After a failed commit memory may be ahead of the database: the next run fills the buffer anew.
  void Uniewaznij();

  // Asks the session whether another connection has written since the buffer was filled; where the server can
  // tell what, that is taken over. Called at the start of every write transaction, inside which the answer
  // holds.
  void SprawdzObceZmiany(TVLTBazaDanych& baza);
  // True when a miss is as good as the database's word.
  bool BrakJestPewny() const { return !m_obceZmiany; }

  // Identifiers of goods that may hold the text, in ascending order without repeats.
  std::vector<int> TowaryZKodem(const QString& kod) const { return Kandydaci(m_kody, kod); }
  std::vector<int> TowaryZeSkrotem(const QString& skrot) const { return Kandydaci(m_skroty, skrot); }
  std::vector<int> TowaryZNazwa(const QString& nazwa) const { return Kandydaci(m_nazwy, nazwa); }
  bool MozeByKod(const QString& kod) const;
  // The one good that may hold the code; nothing when there is none or more than one.
  std::optional<int> JedynyZKodem(const QString& kod) const;
  bool MozeBySkrot(const QString& skrot) const;
  bool MozeByNazwa(const QString& nazwa) const;

  // The texts of one good as stored: the import hands over what was there before a save and what is there
  // now.
  struct Teksty {
    QString nazwa;
    QString kod, skrot;              // main code and its short name
    std::vector<QString> dodatkowe;  // additional codes
    std::vector<QString> dodSkroty;  // their short names, in the same order
  };
  // Remembered until the batch is committed or undone.
  void Dodaj(int towId, const Teksty& teksty);
  void Zmien(int towId, const Teksty& bylo, const Teksty& jest);

  // What was told since the last of these two calls is stored for good; or it was undone.
  void Zatwierdz() { m_zmiany.clear(); }
  void Cofnij();

  int Ilosc() const { return m_ilosc; }

 private:
  struct Zmiana {
    int towId;
    Teksty bylo, jest;
    bool nowy;
  };
  void DoczytajZapisane(TVLTBazaDanych& baza);
  void Wpisz(int towId, const Teksty& bylo, const Teksty& jest);

  using Indeks = std::unordered_multimap<std::uint64_t, int>;
  static std::vector<int> Kandydaci(const Indeks& indeks, const QString& tekst);

  Indeks m_kody, m_skroty, m_nazwy;
  std::vector<Zmiana> m_zmiany;
  int m_ilosc = 0;
  bool m_gotowy = false;
  bool m_obceZmiany = false;
  long long m_znacznik = 0;
  long long m_chwila = 0;  // up to which the texts of others are known; on servers that can tell
};
