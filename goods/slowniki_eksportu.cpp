#include "goods/slowniki_eksportu.h"

#include <algorithm>

#include "exchange/wiersz_eksportu.h"
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
      m_jednostki(WczytajNazwy(baza, "select JMId, Nazwa from JM")),
      m_nipy(WczytajNazwy(baza, "select KontrId, NIP from Kontrahent where NIP <> ''")) {
  for (auto& [kontrId, nip] : m_nipy) nip = nip.trimmed();
  WczytajKategorie(baza);
}

void SlownikiEksportu::WczytajKategorie(TVLTBazaDanych& baza) {
  struct Wartosci {
    QString polaczone;
    bool znakiBloku = false;
  };
  std::unordered_map<long long, Wartosci> listy;
  for (auto odczyt = baza.Otworz("select ParId, Wartosc from ParWartosc order by ParId, Kolejnosc",
                                 {TypPola::Calkowite, TypPola::Tekst});
       odczyt.Nastepny();) {
    const auto [lista, nowa] = listy.try_emplace(odczyt[0].AsInteger());
    const QString wartosc = odczyt[1].AsString();
    if (!nowa) lista->second.polaczone += u'|';
    lista->second.polaczone += wartosc;
    lista->second.znakiBloku |= GinieWBloku(wartosc, u"(|)");
  }
  for (auto& [katId, nazwa] : WczytajNazwy(baza, "select KatId, Nazwa from Kategoria")) {
    KategoriaEksportu& kategoria = m_kategorie[katId];
    kategoria.m_nazwa = nazwa;
    kategoria.m_znakiBloku = GinieWBloku(nazwa, u"(:)");
  }
  for (auto odczyt =
           baza.Otworz("select K.KatId, P.ParId, P.Nazwa, P.Typ, P.Od, P.Do from KatParam K, Parametr P"
                       " where K.ParId = P.ParId order by K.KatId, K.Kolejnosc, K.ParId",
                       {TypPola::Calkowite, TypPola::Calkowite, TypPola::Tekst, TypPola::Calkowite,
                        TypPola::Dziesietne, TypPola::Dziesietne});
       odczyt.Nastepny();) {
    KategoriaEksportu& kategoria = m_kategorie[odczyt[0].AsInteger()];
    const int parId = static_cast<int>(odczyt[1].AsInteger());
    const QString nazwa = odczyt[2].AsString();
    kategoria.m_znakiBloku |= GinieWBloku(nazwa, u"()");
    switch (odczyt[3].AsInteger()) {
      case kLista: {
        const Wartosci& lista = listy[parId];
        kategoria.m_znakiBloku |= lista.znakiBloku;
        // Stored from 0, written from 1.
        kategoria.m_parametry.push_back({parId, nazwa + u'(', 1, u':' + lista.polaczone + u')'});
        break;
      }
      case kZakres:
        kategoria.m_parametry.push_back({parId, nazwa + u'(', 0,
                                         u':' + QString::number(odczyt[4].AsInteger()) + u".."_s +
                                             QString::number(odczyt[5].AsInteger()) + u')'});
        break;
      default:
        kategoria.m_parametry.push_back({parId, nazwa + u'(', kBezLiczby, u")"_s});
    }
  }
}

const QString& SlownikiEksportu::Nazwa(const Nazwy& nazwy, long long id) {
  static const QString pusta;
  const auto nazwa = nazwy.find(id);
  return nazwa == nazwy.end() ? pusta : nazwa->second;
}

const KategoriaEksportu* SlownikiEksportu::Kategoria(long long katId) const {
  const auto kategoria = m_kategorie.find(katId);
  return kategoria == m_kategorie.end() ? nullptr : &kategoria->second;
}
