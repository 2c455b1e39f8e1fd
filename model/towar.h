#pragma once

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QString>

#include "model/bufor_towarow.h"
#include "model/element.h"
#include "model/kody_dodatkowe.h"
#include "model/kolumny.h"
#include "model/szczegoly_towaru.h"

class TDmVLTListaKategorii;
class TDmVLTListaSlownika;
class SkrotyTowaru;
class TDmVLTNazwySkrocone;
class TVLTBazaDanych;
class ZapasTowarow;
struct OdczytanyTowar;
struct RegulyKodow;

// What the goods records of one run share beside the session. Everything is held by reference: a rule changed
// during the run (a new weighted-code format) holds from the next save on.
struct OtoczenieTowarow {
  const RegulyKodow& reguly;
  TDmVLTNazwySkrocone& skroty;
  // Spares the statements that would look for a code which nobody has. Whoever opens the transaction has it
  // look for other connections' changes first. None: the database is always asked.
  const TVLTBuforTowarow* bufor = nullptr;
  // Spare looking for the assortment, the unit and the category's parameters at every save. Whoever opens the
  // transactions reads them anew when another connection has written. None, or an entry that they do not
  // hold: the database is asked.
  TDmVLTListaSlownika* asortymenty = nullptr;
  TDmVLTListaSlownika* jednostki = nullptr;
  TDmVLTListaKategorii* kategorie = nullptr;
  // Whether central codes must be unique.
  bool unikalneCKU = false;
  // Goods read ahead: loading one of them asks the database nothing. None: the database is always asked.
  ZapasTowarow* zapas = nullptr;
};

// The same for work outside an import: code rules from the system parameters, rules of short names and
// weighted-code formats from the database, read at construction.
class OtoczenieZParametrow {
 public:
  explicit OtoczenieZParametrow(KontekstSesji& context);
  ~OtoczenieZParametrow();
  OtoczenieTowarow Widok() const { return {*m_reguly, *m_skroty}; }

 private:
  std::unique_ptr<RegulyKodow> m_reguly;
  std::unique_ptr<TDmVLTNazwySkrocone> m_skroty;
};

enum class TypTowaru { Towar = 0, Opakowanie = 1, Usluga = 2 };

// Columns of the main row in the order in which the select returns them: those of table Towar, then those of
// the packaging link Powiazanie. Kinds: model/kolumny.h; Nazwa, Typ and Stawka have accessors of their own.
#define ZORVIK_POLA_TOWARU(POLE) \
  POLE(TowId, Klucz)             \
  POLE(AsId, Id)                 \
  POLE(JMId, Id)                 \
  POLE(KatId, Id)                \
  POLE(Producent, Id)            \
  POLE(Nazwa, Nazwa)             \
  POLE(Skrot, Tekst)             \
  POLE(Kod, Tekst)               \
  POLE(TypTowaru, Typ)           \
  POLE(Indeks1, Tekst)           \
  POLE(Indeks2, Tekst)           \
  POLE(Opis1, Tekst)             \
  POLE(Opis2, Tekst)             \
  POLE(Opis3, Tekst)             \
  POLE(Opis4, Tekst)             \
  POLE(TermWazn, Liczba)         \
  POLE(Marza, Kwota)             \
  POLE(HurtRabat, Kwota)         \
  POLE(NocNarzut, Kwota)         \
  POLE(OpcjaMarzy, Liczba)       \
  POLE(OpcjaRabatu, Liczba)      \
  POLE(OpcjaNarzutu, Liczba)     \
  POLE(CenaEw, Kwota)            \
  POLE(CenaDet, Kwota)           \
  POLE(CenaHurt, Kwota)          \
  POLE(CenaNoc, Kwota)           \
  POLE(CenaDod, Kwota)           \
  POLE(CenaOtwarta, Liczba)      \
  POLE(PoziomCen, Liczba)        \
  POLE(PrefPLU, Liczba)          \
  POLE(Stawka, Stawka)           \
  POLE(IleWZgrzewce, Kwota)      \
  POLE(IleWCalosci, Kwota)       \
  POLE(KodZgrzewki, Tekst)       \
  POLE(Aktywny, Liczba)          \
  POLE(Zmiana, Zegar)            \
  POLE(Waga, Liczba)             \
  POLE(Szerokosc, Liczba)        \
  POLE(Wysokosc, Liczba)         \
  POLE(Glebokosc, Liczba)        \
  POLE(CKU, Tekst)               \
  POLE(BlokDostawcow, Liczba)    \
  POLE(BlokCenyZak, Liczba)      \
  POLE(BlokCenSp, Liczba)        \
  POLE(BlokZmian, Liczba)        \
  POLE(Rezerwa1, Tekst)          \
  POLE(Rezerwa2, Tekst)          \
  POLE(OpakId, Id)               \
  POLE(IleWOpak, Kwota)          \
  POLE(Tandem, Liczba)

// Positions of the columns: Query.Field(KolumnaTowaru::Kod).
struct KolumnaTowaru {
  enum Numer : std::size_t { ZORVIK_POLA_TOWARU(ZORVIK_NUMER) kIlosc };
};

// Why a good cannot be saved: a code of EVLTWDError and its detail. 0: it can.
struct WynikWalidacji {
  int kod = 0;
  QString szczegol = {};

  bool Dobry() const { return kod == 0; }
};

// One good (towar, opakowanie, usługa). Besides the life cycle of every record:
// - what was read stays beside what was set: TakiSamJakWBazie and TekstyZBazy need no second reading, and the
// update
//   describes its changes from it;
// - reading a good that was not read ahead takes four selects (main row, additional codes, parameter values,
// suppliers); stock, note and
//   registers are read when they are asked for;
// - Zapisz first plans (validation, change description), then writes: refusals are EVLTWDError with the code
// of the
//   validation, 2006 for a number outside its column, 2040 for a text longer than its own, 2007 when a
//   constraint, range or length of the database refused the values (the cause is the EBladBazy). Other
//   EBladBazy pass unchanged. After a failure the record is as it was and can be saved again.
// Buffers and lists of the run know nothing of a save; the run tells them when the unit has succeeded.
class TDmVLTTowar final : public TDmVLTElement {
 public:
  TDmVLTTowar(KontekstSesji& context, const OtoczenieTowarow& otoczenie);
  ~TDmVLTTowar() override;

  // Getters and setters by the columns' names: towar.CenaDet(), towar.UstawCenaDet(12.5).
  using Kolumna = KolumnaTowaru;
#define ZORVIK_DOSTEP_Nazwa(nazwa)                       \
  QString nazwa() const {                                \
    return Query.Field(KolumnaTowaru::nazwa).AsString(); \
  }                                                      \
  void Ustaw##nazwa(const QString& tekst);
#define ZORVIK_DOSTEP_Typ(nazwa) \
  ::TypTowaru nazwa() const;     \
  void Ustaw##nazwa(::TypTowaru typ);
#define ZORVIK_DOSTEP_Stawka(nazwa) \
  std::optional<int> nazwa() const; \
  void Ustaw##nazwa(std::optional<int> stawka);
  ZORVIK_POLA_TOWARU(ZORVIK_DOSTEP)
#undef ZORVIK_DOSTEP_Nazwa
#undef ZORVIK_DOSTEP_Typ
#undef ZORVIK_DOSTEP_Stawka
  // UstawNazwa: when the name changes while the short name (trimmed) is empty, a unique short name is made
  // from it; without a free one the short name stays empty. Stawka: hundredths of a percent, -1 exempt;
  // none chosen: nothing. TypTowaru: any other stored value than 0..2 reads as Towar.

  KodyDodatkowe& Kody() {
    return m_kody;
  }
  const KodyDodatkowe& Kody() const {
    return m_kody;
  }
  WartosciParametrow& Wartosci() {
    return m_wartosci;
  }
  const WartosciParametrow& Wartosci() const {
    return m_wartosci;
  }
  DostawcyTowaru& Dostawcy() {
    return m_dostawcy;
  }
  const DostawcyTowaru& Dostawcy() const {
    return m_dostawcy;
  }
  // Read at the first call after a load.
  StanyTowaru& Stany();
  QString Notatka();
  void UstawNotatka(const QString& tekst);

  // Makes a unique short name from the good's name for the main code (-1) or the additional code with that
  // index and stores it; false when none is free or the name has no words.
  bool UtworzSkrot(int indeks = -1);
  // The same for every code, main or additional, whose short name (trimmed) is empty.
  bool UtworzBrakujaceSkroty();
  // The name UtworzSkrot would give a good with this name and these short names; the record stays as it is.
  std::optional<QString> ZaproponujSkrot(const QString& nazwa, const SkrotyTowaru& skroty, int indeks) const;
  // Whether a save would refuse the short name of the code with that index: against the rules, or used.
  bool SkrotDoPoprawy(int indeks) const;

  // Managed by the chain's centre: it has a central code.
  bool Centralny() const;
  // Whether the text is the main code or one of the additional codes.
  bool MaKod(const QString& kod) const;

  // Nothing that a file can carry differs from what was read: texts exactly, numbers within 1e-6, additional
  // codes by code, short name and PLU prefix in order, suppliers that have a tax number in order, parameter
  // values by identifier. The status (Aktywny) is left out.
  bool TakiSamJakWBazie() const;
  // What the goods buffer keeps of this good: as it is now, and as it was read or last saved.
  TVLTBuforTowarow::Teksty Teksty() const;
  TVLTBuforTowarow::Teksty TekstyZBazy() const;

  // The checks a save makes, in order; the first failure is the answer.
  WynikWalidacji Sprawdz() const;

  // Deactivates or restores the stored good at once, a unit of its own; other changes of the record stay
  // pending. 2868 central, 2867 stock or blocked quantity, 2802 and 2803 when there is nothing to do.
  void Usun();
  void Przywroc();

 protected:
  const char* IdFieldName() const override {
    return "TowId";
  }
  void SetLoadParams(int id) override;
  void PrzedJednostka() override;
  std::span<const Wartosc> ZablokowanyWiersz(int id) const override;
  std::span<const Wartosc> OdczytanyWiersz(int id) const override;
  std::optional<ZrodloWiersza> BlokowanyWiersz() const override {
    return ZrodloWiersza{"Towar", "T", Kolumna::OpakId};
  }
  void ClearDetails() override;
  void AfterLoad(bool isNew, int id) override;
  int InsertRecord() override;
  void UpdateRecord(int id) override;
  void AfterSave() override;

 private:
  struct Plan;
  class Walidacja;

  // `jeszcze`: codes that the record does not hold yet, without a name.
  SkrotyTowaru Skroty(int jeszcze = 0) const;
  void UstawStatus(bool aktywny);
  // Null when it was not read ahead.
  const OdczytanyTowar* Odczytany(int id) const;
  void ZapomnijOdczytany() const;

  WynikWalidacji SprawdzDoPlanu(Plan& plan) const;
  Plan Zaplanuj() const;
  void UzupelnijWartosci(Plan& plan) const;
  std::vector<int> ParametryKategorii() const;
  std::vector<Parametr>& ParametryZapisu();
  void ZapiszNotatke(int id) const;
  void WstawPowiazanie(int id) const;
  void ZapiszSzczegoly(int id) const;
  // Whether a column differs from what was read; numbers within 1e-6 are the same.
  bool Zmieniona(std::size_t kolumna) const;
  bool Zmienione(std::initializer_list<KolumnaTowaru::Numer> kolumny) const;
  // The same of what the save in hand writes, which is not always what the record holds: the main code takes
  // its stored form, automatic codes are added.
  bool Zapisuje(std::size_t kolumna) const;
  const KodyDodatkowe& ZapisywaneKody() const;
  void SprawdzKasy(int id) const;
  void ZaznaczNaKasach(int id) const;
  QString OpisZmian() const;

  OtoczenieTowarow m_otoczenie;
  // A new good's row: nothing chosen, numbers 0, texts empty.
  std::vector<Wartosc> m_nowyWiersz;
  KodyDodatkowe m_kody;
  WartosciParametrow m_wartosci;
  DostawcyTowaru m_dostawcy;
  std::optional<StanyTowaru> m_stany;
  std::optional<QString> m_notatka;
  bool m_notatkaZmieniona = false;
  // What the save in hand changes in memory once it has succeeded.
  std::unique_ptr<Plan> m_plan;
  std::vector<Parametr> m_parametry;  // kept for the next save
};

// What stands in the way of deactivating a good. Its own transaction when none is open.
enum class PrzeszkodaUsuniecia { Brak = 0, Centralny = 1, Stan = 2 };
PrzeszkodaUsuniecia SprawdzUsuwanie(TVLTBazaDanych& baza, int towId);
