#include "goods/slowniki_eksportu.h"

#include <algorithm>

#include <QSet>
#include <QStringList>

#include "goods/bloki.h"
#include "model/bufor_nip.h"
#include "platform/baza/sesja.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kLista = 0;
constexpr int kZakres = 1;
constexpr int kBezLiczby = -1;

std::unordered_map<long long, QString> WczytajNazwy(TVLTBazaDanych& baza, std::string_view sql) {
  std::unordered_map<long long, QString> nazwy;
  for (auto odczyt = baza.Otworz(sql, {TypPola::Calkowite, TypPola::Tekst}); odczyt.Nastepny();)
    nazwy.emplace(odczyt[0].AsInteger(), odczyt[1].AsString());
  return nazwy;
}

}  // namespace

QString KategoriaEksportu::Blok(const std::vector<std::pair<int, long long>>& wartosci) const {
  QString blok = m_nazwa;
  QStringView przed = u": ";
  for (const Parametr& parametr : m_parametry) {
    blok += przed;
    blok += parametr.przed;
    przed = u";";
    if (parametr.przesuniecie != kBezLiczby) {
      const auto zapisana = std::find_if(wartosci.begin(), wartosci.end(),
                                         [&](const auto& w) { return w.first == parametr.parId; });
      const long long wartosc = zapisana == wartosci.end() ? 0 : zapisana->second;
      blok += QString::number(wartosc + parametr.przesuniecie);
    }
    blok += parametr.po;
  }
  return blok;
}

SlownikiEksportu::SlownikiEksportu(TVLTBazaDanych& baza)
    : m_asortymenty(WczytajNazwy(baza, "select AsId, Nazwa from Asort")),
      m_jednostki(WczytajNazwy(baza, "select JMId, Nazwa from JM")) {
  WczytajNipy(baza);
  WczytajKategorie(baza);
}

void SlownikiEksportu::WczytajNipy(TVLTBazaDanych& baza) {
  QSet<QString> zajete;
  for (auto odczyt = baza.Otworz("select KontrId, NIP from Kontrahent where NIP <> '' order by KontrId",
                                 {TypPola::Calkowite, TypPola::Tekst});
       odczyt.Nastepny();) {
    const QString nip = odczyt[1].AsString().trimmed();
    if (nip.isEmpty()) continue;
    const QString cyfry = NormalizujNip(nip);
    const bool wskazuje = !cyfry.isEmpty() && !zajete.contains(cyfry);
    zajete.insert(cyfry);
    m_nipy.emplace(odczyt[0].AsInteger(), NipKontrahenta{nip, wskazuje});
  }
}

void SlownikiEksportu::WczytajKategorie(TVLTBazaDanych& baza) {
  std::unordered_map<long long, std::vector<QString>> listy;
  for (auto odczyt = baza.Otworz("select ParId, Wartosc from ParWartosc order by ParId, Kolejnosc",
                                 {TypPola::Calkowite, TypPola::Tekst});
       odczyt.Nastepny();)
    listy[odczyt[0].AsInteger()].push_back(odczyt[1].AsString());
  // What an import has to read of the blocks without stored values.
  std::unordered_map<long long, BlokKategorii> wzorce;
  for (auto& [katId, nazwa] : WczytajNazwy(baza, "select KatId, Nazwa from Kategoria"))
    m_kategorie[katId].m_nazwa = wzorce[katId].kategoria = nazwa;
  for (auto odczyt =
           baza.Otworz("select K.KatId, P.ParId, P.Nazwa, P.Typ, P.Od, P.Do from KatParam K, Parametr P"
                       " where K.ParId = P.ParId order by K.KatId, K.Kolejnosc, K.ParId",
                       {TypPola::Calkowite, TypPola::Calkowite, TypPola::Tekst, TypPola::Calkowite,
                        TypPola::Dziesietne, TypPola::Dziesietne});
       odczyt.Nastepny();) {
    auto& parametry = m_kategorie[odczyt[0].AsInteger()].m_parametry;
    const int parId = static_cast<int>(odczyt[1].AsInteger());
    ParametrZBloku wzor;
    wzor.nazwa = odczyt[2].AsString();
    const QString przed = wzor.nazwa + u'(';
    switch (odczyt[3].AsInteger()) {
      case kLista: {
        wzor.n = 1;
        wzor.wartosci = listy[parId];
        // Stored from 0, written from 1.
        const QStringList wartosci(wzor.wartosci.begin(), wzor.wartosci.end());
        parametry.push_back({parId, przed, 1, u':' + wartosci.join(u'|') + u')'});
        break;
      }
      case kZakres:
        wzor.typ = ParametrZBloku::Typ::Zakres;
        wzor.od = static_cast<int>(odczyt[4].AsInteger());
        wzor.doo = static_cast<int>(odczyt[5].AsInteger());
        parametry.push_back({parId, przed, 0,
                             u':' + QString::number(odczyt[4].AsInteger()) + u".."_s +
                                 QString::number(odczyt[5].AsInteger()) + u')'});
        break;
      default:
        parametry.push_back({parId, przed, kBezLiczby, u")"_s});
    }
    wzorce[odczyt[0].AsInteger()].parametry.push_back(std::move(wzor));
  }
  for (auto& [katId, kategoria] : m_kategorie) {
    const auto odczytany = CzytajBlokKategorii(kategoria.Blok({}));
    kategoria.m_wroci = !odczytany.blad && odczytany.wartosc == wzorce[katId];
  }
}

const KategoriaEksportu* SlownikiEksportu::Kategoria(long long katId) const {
  const auto kategoria = m_kategorie.find(katId);
  return kategoria == m_kategorie.end() ? nullptr : &kategoria->second;
}
