#pragma once

// Options of the contractor operations. Members bear the names of the controls that show them. A run holds
// the structs by reference and reads an option when it needs it.

enum class JacyKontrahenci { RBKontrahenciWszyscy = 1, RBKontrahenciAktywni = 2, RBKontrahenciUsunieci = 3 };

struct OpcjeImportuKontrahentow {
  bool cb_aktkontr = false;
  bool cb_nowykontr = false;

  // A record without a tax number. One flag a button, as they are stored.
  bool rb_dodajKontrBezNIPu = false;
  bool rb_pominKontrBezNIPu = false;
  bool rb_dodajKontrBezNIPuJesliInnyAdres = false;
  // A record whose tax number is in the database already.
  bool rb_PominBoTakiNIPJuzJest = false;
  bool rb_DodajChociazTakiNIPJuzJest = false;
  bool rb_DodajJesliMaInnyAdres = false;

  // What a contractor becomes when the file names no kind.
  bool cb_dostawca = false;
  bool cb_odbiorca = false;
  bool cb_producent = false;
  bool cb_sklep = false;

  JacyKontrahenci jacyKontrahenci = JacyKontrahenci::RBKontrahenciWszyscy;
};

struct OpcjeEksportuKontrahentow {
  bool cb_gdyOdbiorca = false;
  bool cb_gdyDostawca = false;
  bool cb_gdyProducent = false;
  bool cb_gdySklep = false;
  bool cb_gdyStale = false;
  bool cb_gdyTymczasowe = false;
  bool cb_gdyZnamyNIP = false;
  bool cb_gdyNieZnamyNIPu = false;
  bool cb_gdyZakladPracyChr = false;
  bool cb_gdyNieZakladPracyChr = false;
  bool cb_wysylajOsobyUprawnione = false;
};
