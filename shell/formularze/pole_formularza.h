#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include <QWidget>

class EtykietaBledu;
class QHBoxLayout;
class QLabel;
class TMField;
struct KontekstSesji;
struct PozycjaListy;

// What a column holds; decides its control. Below Lista: chosen from a list.
enum class RodzajPola {
  Tekst,
  Kwota,
  KwotaLubBrak,  // empty: null
  Cena,          // shown with two decimals at least
  Procent,       // a fraction in the database
  Liczba,
  LiczbaLubBrak,  // empty: null
  Data,           // dd.mm.yyyy; empty: null
  Kontrahent,     // its tax number, the name beside it
  Flaga,
  // Lists
  TypTowaru,
  StawkaVat,
  Asortyment,
  Jednostka,
  Kategoria,
  Parametr,  // of a category; the choices are given
  Opakowanie,
  Magazyn,
  Kontakty
};

// One line of a form's table of fields.
struct OpisPolaFormularza {
  const char* grupa;    // the group box that takes it
  std::size_t kolumna;  // of the record's row; its name becomes the control's
  RodzajPola rodzaj;
  int pole;                      // of the exchange catalogue, which gives the caption
  std::u16string_view podpis{};  // where the catalogue has none that suits
};

// The control of one column with what is wrong with it below. The column is not touched before Wpisz.
class PoleFormularza : public QWidget {
 public:
  // Throws EBladBazy when a dictionary cannot be read.
  static std::unique_ptr<PoleFormularza> Utworz(const OpisPolaFormularza& opis, const QString& podpis,
                                                const TMField& kolumna, KontekstSesji& sesja);
  // A list whose choices are known.
  static std::unique_ptr<PoleFormularza> UtworzListe(const OpisPolaFormularza& opis, const QString& podpis,
                                                     const TMField& kolumna,
                                                     std::vector<PozycjaListy> pozycje);

  std::size_t Kolumna() const { return m_kolumna; }
  QWidget& Kontrolka() { return *m_kontrolka; }
  // Puts something right of the control.
  void Dolacz(QWidget& obok);

  // Says below the control what is wrong with its value; true when nothing is.
  bool Sprawdz();
  void PokazBlad(const QString& blad);
  // Writes a value without a fault, and only one that the person has changed.
  virtual void Wpisz(TMField& kolumna) = 0;

 protected:
  PoleFormularza(const OpisPolaFormularza& opis, const QString& podpis, const TMField& kolumna,
                 QWidget* kontrolka);
  virtual QString Wada() { return {}; }

 private:
  std::size_t m_kolumna;
  QWidget* m_kontrolka;
  QHBoxLayout* m_wiersz;
  EtykietaBledu* m_blad;
};
