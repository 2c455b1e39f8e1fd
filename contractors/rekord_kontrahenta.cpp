#include "contractors/rekord_kontrahenta.h"

#include "contractors/kontekst_importu_kontrahentow.h"
#include "contractors/opcje_kontrahentow.h"
#include "exchange/pola_rekordu.h"
#include "model/bledy.h"
#include "model/bufor_nip.h"
#include "model/szerokosci.h"
#include "run/kolejka_rekordow.h"
#include "run/liczniki.h"
#include "run/raport_problemow.h"

using namespace Qt::Literals::StringLiterals;

RekordKontrahenta::RekordKontrahenta(KontekstImportuKontrahentow& import)
    : m_import(import), m_kontrahent(import.sesja) {
  m_kontrahent.WspolneNumerySklepow(import.numerySklepow);
}

void RekordKontrahenta::Przetworz(const RekordPliku& rekord) {
  const LiniaRekordu linia = rekord.Linia();
  // An empty line of the own layout.
  if (linia.Reszta().empty()) return;
  const PolaRekordu pola(linia, RodzajRekordu::Kontrahenci, m_import.separator);
  m_nazwa = pola.Tekst(PoleKontrahenta::Nazwa);
  m_nip = pola.Trim(PoleKontrahenta::Nip);
  m_cyfry = NormalizujNip(m_nip);
  m_numer = rekord.numer;
  m_import.raport.NowyRekord(m_nip, m_nazwa);
  try {
    if (const Odmowa odmowa = Przeprowadz(pola)) m_import.raport.Zglos(*odmowa);
  } catch (const EVLTWDError& blad) {
    m_import.raport.Zglos(TekstDoRaportu(blad));
  }
}

Odmowa RekordKontrahenta::Przeprowadz(const PolaRekordu& pola) {
  if (m_nazwa.trimmed().isEmpty())
    return m_nip.isEmpty() ? u"Brak nazwy i NIPu kontrahenta w linii "_s + QString::number(m_numer)
                           : u"Brak nazwy kontrahenta"_s;
  const int znaleziony = m_import.bufor.Znajdz(m_cyfry);
  const StanNipu stan = m_cyfry.isEmpty() ? StanNipu::Brak
                        : znaleziony < 0  ? StanNipu::Nieznany
                                          : StanNipu::Znany;
  const Decyzja decyzja = Zdecyduj(stan, m_import.opcje);
  if (auto odmowa = Przygotuj(decyzja, znaleziony)) return odmowa;
  if (auto odmowa = Wypelnij(pola, decyzja)) return odmowa;
  Zapisz();
  return std::nullopt;
}

// The contractor to be filled: the one found, or a new one with its name and tax number.
Odmowa RekordKontrahenta::Przygotuj(Decyzja decyzja, int znaleziony) {
  switch (decyzja) {
    case Decyzja::Pomin:
      return u"Brak NIPu kontrahenta"_s;
    case Decyzja::Popraw:
      if (!m_import.opcje.cb_aktkontr) return u"Kontrahent z tym NIP-em już jest w bazie"_s;
      m_kontrahent.Wczytaj(znaleziony);
      if (m_import.Aktualizuje(PoleKontrahenta::Nazwa)) m_kontrahent.UstawNazwa(m_nazwa);
      return std::nullopt;
    case Decyzja::Dodaj:
    case Decyzja::DodajJesliInnyAdres:
      break;
  }
  if (!m_import.opcje.cb_nowykontr)
    return m_cyfry.isEmpty() ? u"Nie można zaktualizować kontrahenta bez NIP-u"_s
                             : u"Kontrahenta z tym NIP-em nie ma w bazie"_s;
  m_kontrahent.Nowy();
  m_kontrahent.UstawNazwa(m_nazwa);
  m_kontrahent.UstawNIP(m_nip);
  return std::nullopt;
}

Odmowa RekordKontrahenta::Wypelnij(const PolaRekordu& pola, Decyzja decyzja) {
  TransferKontrahenta transfer(m_import, pola, m_numer, m_kontrahent);
  if (auto odmowa = transfer.Przenies(PoleKontrahenta::NazwaSkrocona, PoleKontrahenta::Miasto)) return odmowa;
  if (decyzja == Decyzja::DodajJesliInnyAdres)
    if (auto odmowa = SprawdzAdres()) return odmowa;
  if (auto odmowa = transfer.Przenies(PoleKontrahenta::Telefon, PoleKontrahenta::Sklep)) return odmowa;
  if (auto odmowa = UstalTyp()) return odmowa;
  if (auto odmowa = transfer.Przenies(PoleKontrahenta::Kontakty, PoleKontrahenta::Status)) return odmowa;
  return FiltrujStatus(pola);
}

Odmowa RekordKontrahenta::SprawdzAdres() const {
  if (!m_import.bufor.MaAdres(m_cyfry, m_kontrahent.Ulica(), m_kontrahent.Miasto())) return std::nullopt;
  return m_cyfry.isEmpty() ? u"Kontrahent bez NIPu i z tym adresem jest już w bazie"_s
                           : u"Kontrahent z tym NIP-em i tym adresem jest już w bazie"_s;
}

// Set only where no kind is left: a stored contractor that got its kinds this way comes out as it was.
Odmowa RekordKontrahenta::UstalTyp() {
  TDmVLTKontrahent& k = m_kontrahent;
  if (k.Dostawca() || k.Odbiorca() || k.Producent() || k.Sklep()) return std::nullopt;
  const OpcjeImportuKontrahentow& opcje = m_import.opcje;
  if (!opcje.cb_dostawca && !opcje.cb_odbiorca && !opcje.cb_producent && !opcje.cb_sklep)
    return u"Nie ustawiono typu kontrahenta"_s;
  k.UstawDostawca(opcje.cb_dostawca);
  k.UstawOdbiorca(opcje.cb_odbiorca);
  k.UstawProducent(opcje.cb_producent);
  k.UstawSklep(opcje.cb_sklep);
  return std::nullopt;
}

// By the status in the file, whether or not it is to be written.
Odmowa RekordKontrahenta::FiltrujStatus(const PolaRekordu& pola) const {
  const bool aktywny = pola.Calkowita(PoleKontrahenta::Status, 1).wartosc != 0;
  const JacyKontrahenci jacy = m_import.opcje.jacyKontrahenci;
  if (aktywny && jacy == JacyKontrahenci::RBKontrahenciUsunieci) return u"Kontrahent aktywny"_s;
  if (!aktywny && jacy == JacyKontrahenci::RBKontrahenciAktywni) return u"Kontrahent usunięty"_s;
  return std::nullopt;
}

void RekordKontrahenta::Zapisz() {
  if (!m_kontrahent.CzyNowy()) {
    if (m_kontrahent.TakiSamJakWBazie()) return m_import.liczniki.Zwieksz(Licznik::BezZmian);
    m_kontrahent.Zapisz();
    return m_import.liczniki.Zwieksz(Licznik::Poprawione);
  }
  const int id = m_kontrahent.Zapisz();
  // Updates need not be told: no run that asks for addresses makes any.
  m_import.bufor.Dodaj(id, m_nip, m_kontrahent.Ulica(), m_kontrahent.Miasto());
  m_import.liczniki.Zwieksz(Licznik::Dodane);
}
