#pragma once

#include <QString>

// Options of the goods operations. Members bear the names of the controls that show them; three-way groups
// are numbered as they are stored. A run holds the structs by reference and reads an option when it needs it.
// Which fields a file may carry is the structure's business (StrukturaPliku::CzyOferowane).

// A file's or an export's price level.
enum class PoziomCeny { Netto = 0, Brutto = 1 };

// A new good whose name another good already bears.
enum class TowarZTaSamaNazwa {
  RBPominTowarZTaSamaNazwa = 1,
  RBDodajTowarZTaSamaNazwa = 2,
  RBDodajJakoKodDodatkowy = 3
};

// A new good without a name. The stored numbers do not follow the order of the buttons on the screen.
enum class TowarBezNazwy {
  RBPominTowarBezNazwy = 1,
  RBDodajTowarZNazwaAuto = 2,
  RBDodajTowarBezNazwy = 3  // asks for the name
};

enum class TowarBezKodu { RBPominTowarBezKodu = 1, RBDodajKodWlasny = 2, RBPytajOKodTowaru = 3 };

enum class JakieTowary { RBTowaryWszystkie = 1, RBTowaryAktywne = 2, RBTowaryUsuniete = 3 };

inline constexpr int kCyfrKoduKrotkiego = 13;

struct OpcjeImportuTowarow {
  bool cb_akttow = true;
  bool cb_nowetowary = true;
  bool cb_noweasortymenty = true;
  bool cb_nowejednostki = true;
  bool cb_nowestawki = true;
  bool cb_nowekategorie = true;
  bool cb_noweparametry = true;
  bool cb_nowekodywazone = true;

  bool cb_akceptujKodyWlasneEAN = false;
  int CBImportStanow = 0;  // 0: no stock; N: into the N-th warehouse of the list
  bool cb_importStanowUjemnych = false;
  bool cb_formatujJM = false;

  bool cb_KodyZaczynajaceSieOdZera = false;
  bool cb_KodyZawierajaceLitery = false;
  bool cb_SprawdzajCyfreKontrolnaWEAN = false;
  QString EdKodyKrotkie = QStringLiteral("10000");  // at most kCyfrKoduKrotkiego digits; empty: none is short
  int UpDownMinDlugoscKodu = 1;                     // characters, 1 to 20
  int UpDownMaxDlugoscKodu = 13;
  bool cb_KodyWazone = false;
  bool cb_PrzywrocUsuniety = false;

  PoziomCeny cb_poziomCenyZakupuImp = PoziomCeny::Netto;
  PoziomCeny cb_poziomCenSprzedazyImp = PoziomCeny::Netto;

  TowarZTaSamaNazwa towarZTaSamaNazwa = TowarZTaSamaNazwa::RBPominTowarZTaSamaNazwa;
  TowarBezNazwy towarBezNazwy = TowarBezNazwy::RBPominTowarBezNazwy;
  TowarBezKodu towarBezKodu = TowarBezKodu::RBPominTowarBezKodu;
  JakieTowary jakieTowary = JakieTowary::RBTowaryWszystkie;
};

struct OpcjeEksportuTowarow {
  PoziomCeny cb_poziomCenyZakupuEksp = PoziomCeny::Netto;
  PoziomCeny cb_poziomCenSprzedazyEksp = PoziomCeny::Netto;
  bool cb_eksportBezCen = false;
  bool cb_eksportBezMarz = false;
  bool cb_eksportBezKategorii = false;
  bool cb_eksportBezKodow = false;
  int CBEksportStanow = 0;  // 0: none, 1: all warehouses together, k from 2: warehouse with id k - 1
};
