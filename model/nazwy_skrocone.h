#pragma once

#include <optional>
#include <set>
#include <span>
#include <vector>

#include <QHash>
#include <QSet>
#include <QString>

class TVLTBazaDanych;
class TVLTBuforTowarow;

// Rules of short names as configured in the database.
struct RegulySkrotow {
  int jakTworzyc = 0;  // 0: the whole name while it fits, 1: the abbreviated name
  bool polskieZnaki = true;
  bool maleLitery = true;
  QString znakiSpecjalne = {};   // further allowed characters, each once, no letters or digits
  char16_t spacjeNaZnak = u' ';  // 0 drops spaces, a blank keeps them, others replace them
  QString inneSeparatory = QStringLiteral("'\"");
  int minDlugosc = 1;
  int maxDlugosc = 40;

  // The configuration "NazwaSkrocona"; without any of its keys the older "Wykazy"; without those the defaults
  // above.
  static RegulySkrotow Wczytaj(TVLTBazaDanych& baza);

  bool SpacjeZostaja() const { return spacjeNaZnak == u' '; }
  bool Dozwolony(QChar znak) const;
};

// The short names of one good's codes as its record holds them now. Codes are known by their index, the main
// code by -1.
class SkrotyTowaru {
 public:
  SkrotyTowaru() = default;
  SkrotyTowaru(QString glowny, std::span<const QString> dodatkowe);

  void Zmien(int indeks, const QString& skrot);

  enum class Kolizja { Brak, Glowny, Dodatkowy };
  // The other code of the good that has the name.
  Kolizja Znajdz(const QString& skrot, int indeks) const;

 private:
  QString m_glowny;
  std::vector<QString> m_dodatkowe;
  QHash<QString, int> m_ile;  // additional codes by their short name
};

// Of one beginning of numbered names: the number below which none is free. For the names of many codes of one
// good, made one after another: none of them searches from the start.
using SprawdzoneNumery = QHash<size_t, int>;

// Short names ("nazwy na kasach") of goods and of their additional codes: checks them and makes unique ones.
// One object serves a run. It remembers the names it has handed out, so that two goods of one file never
// get the same name before either is saved: a name made by Utworz is held for the record in hand until
// Potwierdz (it was saved) or Zwolnij (it was not, or its names are to be made again). The checks return
// messages; only the database itself raises errors.
class TDmVLTNazwySkrocone {
 public:
  // The database and the buffer must outlive the object. Without a buffer, or while it is not ready, the
  // database is always asked. Reads the rules.
  explicit TDmVLTNazwySkrocone(TVLTBazaDanych& baza, const TVLTBuforTowarow* bufor = nullptr);
  TDmVLTNazwySkrocone(TVLTBazaDanych& baza, const TVLTBuforTowarow* bufor, RegulySkrotow reguly);

  const RegulySkrotow& Reguly() const { return m_reguly; }

  struct Wynik {
    bool dobry;
    QString komunikat;
  };
  // Against the rules; `dodatkowy`: the name of an additional code.
  Wynik Sprawdz(const QString& skrot, bool dodatkowy) const;
  // The same without a message.
  bool Poprawny(const QString& skrot) const;

  struct WynikUnikalnosci {
    int towId;  // the good that uses the name, -1 when free
    QString komunikat;
  };
  // In the database, leaving out the good with the given identifier (-1: none).
  WynikUnikalnosci SprawdzUnikalnosc(const QString& skrot, int wlasneId, bool dodatkowy) const;
  // Against the other codes of the same good; `indeks` is the additional code it belongs to, -1 the main
  // code.
  static Wynik SprawdzWsrodKodow(const QString& skrot, const SkrotyTowaru& kody, int indeks);

  // A unique short name for a good's name; `indeks` as above names the code it is for, whose own present name
  // does not stand in the way. `numer` -1 tries without a number first. Empty for a name without words,
  // nothing when 9999 tries found no free name. `sprawdzone`: what the names made just before have found out;
  // between them no name of the good may become free.
  std::optional<QString> Utworz(const QString& nazwa, const SkrotyTowaru& kody, int indeks, int wlasneId,
                                bool sprawdzajBaze, int numer = -1, SprawdzoneNumery* sprawdzone = nullptr);
  void Potwierdz();
  void Zwolnij();
  // A stored good does not have this name any more: its number is tried again.
  void Oddaj(const QString& skrot);
  // The records saved since the last of these two calls are stored for good; or their saves were undone.
  void ZatwierdzPaczke() { m_nadaneWPaczce.clear(); }
  void CofnijPaczke();

 private:
  enum class Werdykt { Pusty, ZaKrotki, ZaDlugi, Znaki, Odstepy, Polskie, Male, Poprawny };
  enum class Stan { Wolny, Chwilowy, Zajety };
  struct Uzycie {
    int towId;
    QString nazwa;
    bool aktywny;
    bool wKodzieDodatkowym;
  };
  // Which codes of which good a name is made for, and what it may not collide with.
  struct Cel {
    const SkrotyTowaru& kody;
    int indeks;
    int wlasneId;
    bool sprawdzajBaze;
    SprawdzoneNumery* sprawdzone;
  };
  // What a run knows of the numbers behind one beginning. Only those held by stored names of other goods
  // count.
  struct Numery {
    int od = 0;  // all below were found taken, so that thousands of equal names do not search from 1
    std::set<int> zwolnione;  // but for these, which may be free again
  };

  Werdykt Ocen(const QString& skrot) const;
  std::optional<Uzycie> ZnajdzUzycie(const QString& skrot, int wlasneId) const;
  bool NaPewnoWolny(const QString& skrot, int wlasneId) const;
  QString Podstawa(const QString& nazwa) const;
  QString Poczatek(const QString& podstawa, int dlugoscPrzyrostka) const;
  Stan StanKandydata(const QString& skrot, const Cel& cel) const;
  std::optional<QString> UtworzZNumerem(const QString& podstawa, const Cel& cel);
  std::optional<QString> UtworzOdNumeru(const QString& podstawa, const Cel& cel, int numer);
  QString Nadaj(const QString& skrot);

  TVLTBazaDanych& m_baza;
  const TVLTBuforTowarow* m_bufor;
  RegulySkrotow m_reguly;
  // Fingerprints of handed-out names: of saved records, and of the record in hand.
  QSet<size_t> m_nadane;
  QSet<size_t> m_nadaneWPaczce;  // a part of them
  QSet<size_t> m_wstepne;
  QHash<size_t, Numery> m_numery;
};
