#include "goods/rozpoznawanie_slownikow.h"

#include <algorithm>
#include <memory>

#include "goods/opcje_towarow.h"
#include "model/bledy.h"
#include "model/kontekst.h"
#include "model/szerokosci.h"
#include "platform/baza/sesja.h"
#include "platform/baza/transakcja.h"
#include "run/liczniki.h"
#include "run/raport_problemow.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Wpis = std::unique_ptr<TDmVLTWpisSlownika>;

template <typename T>
Wpis Nowy(KontekstSesji& sesja) {
  return std::make_unique<T>(sesja);
}

void UstawPrecyzje(TDmVLTWpisSlownika& wpis) {
  auto& jednostka = static_cast<TDmVLTJednostka&>(wpis);
  jednostka.UstawPrecyzje(jednostka.Nazwa() == u"szt." ? 0 : 3);
}

void BezDodatkow(TDmVLTWpisSlownika& /*wpis*/) {}

// Runs a save; false when the record or the database refused the values. A text that is too long is told by
// the record of the file; what would meet every other record as well goes on to the end of the run.
template <typename Zapis>
bool Udalo(Zapis zapis) {
  try {
    zapis();
    return true;
  } catch (const EVLTWDError& blad) {
    if (ZaDlugiTekst(blad)) throw;
    return false;
  } catch (const EBladBazy& blad) {
    if (blad.KonczyPrzebieg()) throw;
    return false;
  }
}

bool TaSamaNazwa(const QString& a, const QString& b) {
  return a.compare(b, Qt::CaseInsensitive) == 0;
}

TDmVLTParametr::Typ TypParametru(const ParametrZBloku& parametr) {
  return parametr.typ == ParametrZBloku::Typ::Lista ? TDmVLTParametr::Typ::Lista
                                                    : TDmVLTParametr::Typ::Zakres;
}

// By its text; a text that the dictionary does not hold stands for its position. Nothing beyond the list.
std::optional<double> PozycjaNaLiscie(const ParametrZBloku& parametr, const std::vector<QString>& wartosci) {
  const int pozycja = parametr.n - 1;
  const QString tekst = parametr.wartosci.at(static_cast<std::size_t>(pozycja));
  if (const auto jest = std::find(wartosci.begin(), wartosci.end(), tekst); jest != wartosci.end())
    return static_cast<double>(jest - wartosci.begin());
  if (pozycja >= static_cast<int>(wartosci.size())) return std::nullopt;
  return pozycja;
}

}  // namespace

// What differs between the dictionaries that are resolved by name.
struct RozpoznawanieSlownikow::Rodzaj {
  bool OpcjeImportuTowarow::*wolnoDodac;
  Licznik dodane;
  QString brak;
  bool przyjmujePisownie;  // an entry that differs in letter case takes the file's spelling
  Wpis (*nowy)(KontekstSesji&);
  void (*uzupelnij)(TDmVLTWpisSlownika&);
};

const RozpoznawanieSlownikow::Rodzaj RozpoznawanieSlownikow::kAsortyment{
    &OpcjeImportuTowarow::cb_noweasortymenty,
    Licznik::Asortymenty,
    u"Nie ma takiego asortymentu"_s,
    true,
    Nowy<TDmVLTAsortyment>,
    BezDodatkow};
const RozpoznawanieSlownikow::Rodzaj RozpoznawanieSlownikow::kJednostka{
    &OpcjeImportuTowarow::cb_nowejednostki,
    Licznik::Jednostki,
    u"Nie ma takiej jednostki"_s,
    true,
    Nowy<TDmVLTJednostka>,
    UstawPrecyzje};
const RozpoznawanieSlownikow::Rodzaj RozpoznawanieSlownikow::kKategoria{
    &OpcjeImportuTowarow::cb_nowekategorie,
    Licznik::Kategorie,
    u"Nie ma takiej kategorii"_s,
    false,
    Nowy<TDmVLTKategoria>,
    BezDodatkow};

RozpoznawanieSlownikow::RozpoznawanieSlownikow(KontekstSesji& sesja, const OpcjeImportuTowarow& opcje,
                                               RaportProblemow& raport, Liczniki& liczniki,
                                               FormatyKodowWazonych& formaty)
    : m_sesja(sesja),
      m_opcje(opcje),
      m_raport(raport),
      m_liczniki(liczniki),
      m_formaty(formaty),
      m_asortymenty(sesja),
      m_jednostki(sesja),
      m_kategorie(sesja),
      m_parametry(sesja) {}

void RozpoznawanieSlownikow::Wczytaj() {
  m_asortymenty.Otworz();
  m_jednostki.Otworz();
  m_kategorie.Otworz();
  m_parametry.Otworz();
  TDmVLTListaKodowWazonych formaty(m_sesja);
  formaty.Otworz();
  m_formaty = formaty.Formaty();
  m_iloscFormatow = formaty.Ilosc();
  m_stawki.Wczytaj(m_sesja.baza);
  m_kategoria = {};
}

int RozpoznawanieSlownikow::Asortyment(const QString& nazwa, int biezacy) {
  return Rozpoznaj(kAsortyment, m_asortymenty, nazwa.trimmed(), biezacy);
}

int RozpoznawanieSlownikow::Jednostka(const QString& nazwa, int biezacy) {
  return Rozpoznaj(kJednostka, m_jednostki, nazwa.trimmed(), biezacy);
}

int RozpoznawanieSlownikow::Kategoria(const QString& nazwa, int biezacy) {
  return Rozpoznaj(kKategoria, m_kategorie, nazwa.trimmed(), biezacy);
}

int RozpoznawanieSlownikow::Rozpoznaj(const Rodzaj& rodzaj, TDmVLTListaSlownika& lista, const QString& nazwa,
                                      int biezacy) {
  if (nazwa.isEmpty()) return -1;
  if (biezacy > 0) {
    const QString obecna = lista.Nazwa(biezacy);
    if (TaSamaNazwa(obecna, nazwa)) {
      if (rodzaj.przyjmujePisownie && obecna != nazwa) Przemianuj(rodzaj, lista, biezacy, nazwa);
      return biezacy;
    }
  }
  if (const int id = lista.ZnajdzNazwe(nazwa); id >= 0) return id;
  if (m_opcje.*rodzaj.wolnoDodac) return DodajWpis(rodzaj, lista, nazwa);
  m_raport.Zglos(rodzaj.brak);
  return -1;
}

int RozpoznawanieSlownikow::DodajWpis(const Rodzaj& rodzaj, TDmVLTListaSlownika& lista,
                                      const QString& nazwa) {
  const Wpis wpis = rodzaj.nowy(m_sesja);
  const bool zapisany = Udalo([&] {
    wpis->Nowy();
    wpis->UstawNazwe(nazwa);
    rodzaj.uzupelnij(*wpis);
    wpis->Zapisz();
  });
  if (!zapisany) return -1;
  lista.Przyjmij(*wpis);
  m_liczniki.Zwieksz(rodzaj.dodane);
  return wpis->Id();
}

// Another entry may bear the new spelling already: the good then keeps its entry as it is.
void RozpoznawanieSlownikow::Przemianuj(const Rodzaj& rodzaj, TDmVLTListaSlownika& lista, int id,
                                        const QString& nazwa) {
  const Wpis wpis = rodzaj.nowy(m_sesja);
  const bool zapisany = Udalo([&] {
    wpis->Wczytaj(id);
    wpis->UstawNazwe(nazwa);
    wpis->Zapisz();
  });
  if (zapisany) lista.Przyjmij(*wpis);
}

bool RozpoznawanieSlownikow::Stawka(int stawka) {
  if (m_stawki.Zawiera(stawka)) return true;
  bool nowa = false;
  if (m_opcje.cb_nowestawki && Udalo([&] { nowa = m_stawki.DopiszDoBazy(m_sesja.baza, stawka); })) {
    if (nowa) m_liczniki.Zwieksz(Licznik::Stawki);
    return true;
  }
  // Operators know this line by the wording of the unit's; it has never had one of its own.
  m_raport.Zglos(kJednostka.brak);
  return false;
}

bool RozpoznawanieSlownikow::FormatKodu(const QString& maska) {
  const auto format = FormatZMaski(maska);
  if (format && (m_formaty.Zawiera(*format) || (m_opcje.cb_nowekodywazone && DodajFormat(*format))))
    return true;
  m_raport.Zglos(u"Nie ma takiego kodu ważonego"_s);
  return false;
}

bool RozpoznawanieSlownikow::DodajFormat(FormatKoduWazonego format) {
  TDmVLTKodWazony kod(m_sesja);
  const bool zapisany = Udalo([&] {
    kod.Nowy();
    kod.UstawNazwe(u"KW typ "_s + QString::number(m_iloscFormatow + 1));
    kod.UstawFormat(format);
    kod.UstawWartoscWKodzie(0);
    kod.UstawDodKontrola(0);
    kod.Zapisz();
  });
  if (!zapisany) return false;
  ++m_iloscFormatow;
  m_formaty.Dodaj(format);
  m_liczniki.Zwieksz(Licznik::FormatyKodowWazonych);
  return true;
}

std::optional<std::pair<int, double>> RozpoznawanieSlownikow::Parametr(int katId,
                                                                       const ParametrZBloku& parametr) {
  const QString nazwa = parametr.nazwa.trimmed();
  const QString brak = u"Nie ma takiego parametru"_s;
  int parId = ParametrWKategorii(katId, nazwa);
  if (parId < 0) parId = m_opcje.cb_noweparametry ? DodajParametr(katId, nazwa, parametr) : -1;
  if (parId < 0) {
    m_raport.Zglos(brak);
    return std::nullopt;
  }
  if (m_parametry.Rodzaj(parId) != TypParametru(parametr)) {
    m_raport.Zglos(u"Istniejący parametr ma inny typ"_s);
    return std::nullopt;
  }
  if (parametr.typ == ParametrZBloku::Typ::Zakres) return std::pair(parId, static_cast<double>(parametr.n));
  const auto pozycja = PozycjaNaLiscie(parametr, m_parametry.Wartosci(parId));
  if (!pozycja) {
    m_raport.Zglos(brak);
    return std::nullopt;
  }
  return std::pair(parId, *pozycja);
}

int RozpoznawanieSlownikow::ParametrWKategorii(int katId, const QString& nazwa) {
  if (m_kategoria.katId != katId) {
    m_kategoria = {katId, {}, nullptr};
    for (const int parId : m_kategorie.Parametry(katId)) PrzyjmijParametr(parId);
  }
  return m_kategoria.parametry.value(nazwa.toCaseFolded(), -1);
}

void RozpoznawanieSlownikow::PrzyjmijParametr(int parId) {
  const QString nazwa = m_parametry.Nazwa(parId).toCaseFolded();
  if (!m_kategoria.parametry.contains(nazwa)) m_kategoria.parametry.insert(nazwa, parId);
}

// Names of parameters are unique in the database, so one that other categories have is only attached. A new
// one and its place in the category are one unit.
int RozpoznawanieSlownikow::DodajParametr(int katId, const QString& nazwa, const ParametrZBloku& parametr) {
  const int istniejacy = m_parametry.ZnajdzNazwe(nazwa);
  // Left alone: the caller refuses the type.
  if (istniejacy >= 0 && m_parametry.Rodzaj(istniejacy) != TypParametru(parametr)) return istniejacy;
  TDmVLTParametr nowy(m_sesja);
  std::unique_ptr<TDmVLTKategoria> kategoria = std::move(m_kategoria.wpis);
  int parId = istniejacy;
  const bool zapisany = Udalo([&] {
    JednostkaZapisu jednostka(m_sesja.baza);
    if (istniejacy < 0) {
      nowy.Nowy();
      nowy.UstawNazwe(nazwa);
      if (parametr.typ == ParametrZBloku::Typ::Lista)
        nowy.UstawListe(parametr.wartosci);
      else
        nowy.UstawZakres(parametr.od, parametr.doo);
      parId = nowy.Zapisz();
    }
    if (!kategoria) {
      kategoria = std::make_unique<TDmVLTKategoria>(m_sesja);
      kategoria->Wczytaj(katId);
    }
    kategoria->DodajParametr(parId);
    kategoria->Zapisz();
    jednostka.Zatwierdz();
  });
  if (!zapisany) return -1;
  m_kategorie.Przyjmij(*kategoria);
  m_kategoria.wpis = std::move(kategoria);
  if (istniejacy < 0) {
    m_parametry.Przyjmij(nowy);
    m_liczniki.Zwieksz(Licznik::Parametry);
  }
  PrzyjmijParametr(parId);
  return parId;
}
