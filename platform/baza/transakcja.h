#pragma once

class TVLTBazaDanych;

// The unit of rollback: one save, one stock write, one new dictionary entry. It is a transaction of its own
// when none is open, otherwise a savepoint inside the caller's. Left without Zatwierdz (an exception), it
// undoes exactly its own statements and the caller's transaction stays open.
class JednostkaZapisu {
 public:
  explicit JednostkaZapisu(TVLTBazaDanych& baza);
  ~JednostkaZapisu();
  JednostkaZapisu(const JednostkaZapisu&) = delete;
  JednostkaZapisu& operator=(const JednostkaZapisu&) = delete;

  void Zatwierdz();

 private:
  TVLTBazaDanych& m_baza;
  int m_poziom;  // 0: owns the transaction; otherwise depth of the savepoint
  bool m_otwarta = true;
};

// While it lives, all selects read from one moment of the database, that of the first of them, whatever
// others write meanwhile; nobody waits for anybody. Inside of a transaction it changes nothing.
class OdczytJednejChwili {
 public:
  explicit OdczytJednejChwili(TVLTBazaDanych& baza);
  ~OdczytJednejChwili();
  OdczytJednejChwili(const OdczytJednejChwili&) = delete;
  OdczytJednejChwili& operator=(const OdczytJednejChwili&) = delete;

 private:
  TVLTBazaDanych& m_baza;
  const bool m_wlasny;
};
