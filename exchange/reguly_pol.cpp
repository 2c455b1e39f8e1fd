#include "exchange/reguly_pol.h"

#include <algorithm>
#include <initializer_list>

#include "exchange/bajty.h"
#include "exchange/strony_kodowe.h"

namespace {

// A VAT text that no description explains.
constexpr std::string_view kStawkaDomyslna = "2200";

struct WartoscSlowaStruktury {
  QString StrukturaPliku::*slowo;
  std::string_view wartosc;
};

struct PoleSlowne {
  int pole;
  std::string_view domyslna;
  std::initializer_list<WartoscSlowaStruktury> slowa;  // the first that matches decides
};

using S = StrukturaPliku;

const std::initializer_list<PoleSlowne> kSlowaTowarow = {
    {PoleTowaru::Status, "1", {{&S::EdPoleAktywny, "1"}, {&S::EdPoleUsuniety, "0"}}},
    {PoleTowaru::TypTowaru,
     "0",
     {{&S::EdPoleTypTowar, "0"}, {&S::EdPoleTypOpakowanie, "1"}, {&S::EdPoleTypUsluga, "2"}}},
};

const std::initializer_list<PoleSlowne> kSlowaKontrahentow = {
    {PoleKontrahenta::Status, "1", {{&S::EdPoleAktywny, "1"}, {&S::EdPoleUsuniety, "0"}}},
    {PoleKontrahenta::Dostawca, "0", {{&S::EdPoleDostawca, "1"}}},
    {PoleKontrahenta::Odbiorca, "0", {{&S::EdPoleOdbiorca, "1"}}},
    {PoleKontrahenta::Producent, "0", {{&S::EdPoleProducent, "1"}}},
    {PoleKontrahenta::Sklep, "0", {{&S::EdPoleSklep, "1"}}},
};

std::string PrzycieteBajty(const QString& tekst, StronaKodowa strona) {
  return std::string(Przytnij(BajtyNaStronie(tekst, strona)));
}

}  // namespace

RegulyPol::RegulyPol(const StrukturaPliku& struktura, std::vector<Spostrzezenie>& spostrzezenia)
    : m_spostrzezenia(spostrzezenia),
      m_rodzaj(struktura.rodzaj),
      m_strona(struktura.CBPolskieZnaki),
      m_maStawke(struktura.ZawieraPole(PoleTowaru::StawkaVat)),
      m_wartosci(static_cast<size_t>(LiczbaWartosci(struktura.rodzaj))),
      m_kwalifikator(struktura.Kwalifikator()) {
  UstalReguly(struktura);
  if (m_rodzaj == RodzajRekordu::Towary) UstalOpisyVat(struktura);
}

void RegulyPol::UstalReguly(const StrukturaPliku& struktura) {
  const bool towary = m_rodzaj == RodzajRekordu::Towary;
  m_reguly[towary ? PoleTowaru::Nazwa : PoleKontrahenta::Nazwa] = Regula::Dolacz;
  if (towary) {
    m_reguly[PoleTowaru::KodyDodatkowe] = Regula::ListaKodow;
    m_reguly[PoleTowaru::NipyDostawcow] = Regula::ListaNipow;
  }
  for (const PoleSlowne& pole : towary ? kSlowaTowarow : kSlowaKontrahentow) {
    m_reguly[static_cast<size_t>(pole.pole)] = Regula::Slowo;
    Slownik& slownik = m_slowniki.emplace_back(Slownik{pole.pole, pole.domyslna, {}});
    for (const auto& [slowo, wartosc] : pole.slowa)
      slownik.slowa.emplace_back(PrzycieteBajty(struktura.*slowo, struktura.CBPolskieZnaki), wartosc);
  }
}

void RegulyPol::UstalOpisyVat(const StrukturaPliku& struktura) {
  for (const OpisVat& opis : struktura.opisyVat) {
    std::string bajty = PrzycieteBajty(opis.Opis(), struktura.CBPolskieZnaki);
    // A rate without a description answers to nothing, least of all to an empty value.
    if (!bajty.empty()) m_stawki.emplace_back(std::move(bajty), opis.Stawka().toStdString());
  }
}

void RegulyPol::Wyczysc() {
  std::fill_n(m_wartosc.begin(), m_wartosci, std::string_view{});
}

void RegulyPol::Zapisz(int numer, std::string_view wartosc) {
  if (numer < 0 || static_cast<size_t>(numer) >= m_wartosci) return;
  const auto pole = static_cast<size_t>(numer);
  switch (m_reguly[pole]) {
    case Regula::Zastap:
      m_wartosc[pole] = wartosc;
      break;
    case Regula::Dolacz:
      // Several columns make up one name; an empty one adds no blank.
      if (m_wartosc[pole].empty())
        m_wartosc[pole] = wartosc;
      else if (!wartosc.empty()) {
        ZauwazKwalifikator(pole, wartosc);
        m_wartosc[pole] = Zlozona(pole).append(" ").append(wartosc);
      }
      break;
    case Regula::Slowo:
      m_wartosc[pole] = WartoscSlowa(numer, wartosc);
      break;
    case Regula::ListaKodow:
      DolaczKod(pole, wartosc);
      break;
    case Regula::ListaNipow:
      DolaczNip(pole, wartosc);
      break;
  }
}

std::string_view RegulyPol::WartoscSlowa(int pole, std::string_view wartosc) {
  for (const Slownik& slownik : m_slowniki) {
    if (slownik.pole != pole) continue;
    for (const auto& [slowo, znaczenie] : slownik.slowa)
      if (slowo == wartosc) return znaczenie;
    ZauwazKwalifikator(static_cast<size_t>(pole), wartosc);
    return slownik.domyslna;
  }
  return wartosc;
}

// The field's own text, holding the value stored so far. The caller stores the view of what it makes of it.
std::string& RegulyPol::Zlozona(size_t pole) {
  std::string& tekst = m_zlozona[pole];
  const std::string_view dotad = m_wartosc[pole];
  if (dotad.data() != tekst.data()) tekst.assign(dotad);
  return tekst;
}

// "(code||)" for a plain code, list elements as they are, joined by ";".
void RegulyPol::DolaczKod(size_t pole, std::string_view wartosc) {
  if (wartosc.empty()) return;
  ZauwazKwalifikator(pole, wartosc);
  std::string& tekst = Zlozona(pole);
  if (!tekst.empty()) tekst += ';';
  if (wartosc.front() == '(')
    tekst.append(wartosc);
  else
    tekst.append("(").append(wartosc).append("||)");
  m_wartosc[pole] = tekst;
}

// "(nip|nip)". A value in list form joins inside the parenthesis after ";", brackets and all.
void RegulyPol::DolaczNip(size_t pole, std::string_view wartosc) {
  if (wartosc.empty()) return;
  ZauwazKwalifikator(pole, wartosc);
  const bool lista = wartosc.front() == '(';
  std::string& tekst = Zlozona(pole);
  if (tekst.empty()) {
    if (lista)
      tekst.append(wartosc);
    else
      tekst.append("(").append(wartosc).append(")");
  } else if (tekst.back() == ')') {
    tekst.pop_back();
    if (lista)
      tekst.append(";").append(wartosc);
    else
      tekst.append("|").append(wartosc).append(")");
  }
  m_wartosc[pole] = tekst;
}

void RegulyPol::PrzypiszStawke() {
  std::string_view& stawka = m_wartosc[PoleTowaru::StawkaVat];
  const auto opis = std::find_if(m_stawki.begin(), m_stawki.end(),
                                 [stawka](const auto& wpis) { return wpis.first == stawka; });
  if (opis == m_stawki.end() && m_maStawke) {
    m_spostrzezenia.push_back(
        {Spostrzezenie::Rodzaj::NieznanyVat, PoleTowaru::StawkaVat, TekstZeStrony(stawka, m_strona)});
    ZauwazKwalifikator(PoleTowaru::StawkaVat, stawka);
  }
  stawka = opis != m_stawki.end() ? std::string_view(opis->second) : kStawkaDomyslna;
}

// A value that is still qualified where nothing will strip it any more.
void RegulyPol::ZauwazKwalifikator(size_t pole, std::string_view wartosc) {
  if (!m_kwalifikator || wartosc.size() < 2) return;
  const char podwojony[] = {*m_kwalifikator, *m_kwalifikator};
  const bool otacza = wartosc.front() == *m_kwalifikator && wartosc.back() == *m_kwalifikator;
  if (!otacza && wartosc.find(std::string_view(podwojony, 2)) == std::string_view::npos) return;
  const Spostrzezenie nowe{Spostrzezenie::Rodzaj::Cudzyslow, static_cast<int>(pole)};
  if (m_spostrzezenia.empty() || m_spostrzezenia.back() != nowe) m_spostrzezenia.push_back(nowe);
}

std::string_view RegulyPol::Zloz() {
  if (m_rodzaj == RodzajRekordu::Towary) PrzypiszStawke();
  m_linia.clear();
  for (size_t pole = 0; pole < m_wartosci; ++pole) {
    std::string_view wartosc = m_wartosc[pole];
    // The closing qualifier goes only with the opening one.
    if (m_kwalifikator && wartosc.starts_with(*m_kwalifikator)) {
      wartosc.remove_prefix(1);
      if (wartosc.ends_with(*m_kwalifikator)) wartosc.remove_suffix(1);
    }
    if (m_kwalifikator && wartosc.find(*m_kwalifikator) != std::string_view::npos)
      ZauwazKwalifikator(pole, wartosc);
    const auto od = static_cast<std::ptrdiff_t>(m_linia.size());
    m_linia.append(wartosc);
    // A tab would be taken for the end of the value.
    std::replace(m_linia.begin() + od, m_linia.end(), '\t', ' ');
    m_linia += '\t';
  }
  return m_linia;
}
