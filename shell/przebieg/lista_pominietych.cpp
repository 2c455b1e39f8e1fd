#include "shell/przebieg/lista_pominietych.h"

#include <algorithm>

#include <QFile>
#include <QHash>
#include <QRegularExpression>

#include "platform/otwarcie_pliku.h"
#include "platform/windows1250.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::string_view kPrzedzial = " | ";

// What stays of a reason without the value it names.
QString NazwaGrupy(const QString& powod) {
  static const QRegularExpression kWartosc(u": .+|^.*(?= nie jest liczbą$)|\\d+"_s,
                                           QRegularExpression::DotMatchesEverythingOption);
  QString nazwa = powod;
  nazwa.replace(kWartosc, u"…"_s);
  return nazwa;
}

// A name may hold the separator, so the outer ones count.
PominietyRekord Rozbierz(std::string_view linia) {
  const std::size_t pierwszy = std::min(linia.find(kPrzedzial), linia.size());
  const std::size_t ostatni = linia.rfind(kPrzedzial);
  const bool pelna = ostatni != std::string_view::npos && ostatni >= pierwszy + kPrzedzial.size();
  if (!pelna) return {{}, {}, windows1250::NaUnicode(linia), 0};
  const std::size_t nazwa = pierwszy + kPrzedzial.size();
  return {windows1250::NaUnicode(linia.substr(0, pierwszy)),
          windows1250::NaUnicode(linia.substr(nazwa, ostatni - nazwa)),
          windows1250::NaUnicode(linia.substr(ostatni + kPrzedzial.size())), 0};
}

class Grupowanie {
 public:
  explicit Grupowanie(ListaPominietych& lista) : m_lista(lista) {}

  void Dodaj(PominietyRekord rekord) {
    auto znany = m_powody.find(rekord.powod);
    if (znany == m_powody.end()) znany = m_powody.insert(rekord.powod, Grupa(NazwaGrupy(rekord.powod)));
    rekord.powod = znany.key();  // one text for all
    rekord.grupa = znany.value();
    ++m_lista.grupy[static_cast<std::size_t>(rekord.grupa)].ile;
    m_lista.rekordy.push_back(std::move(rekord));
  }

 private:
  int Grupa(const QString& nazwa) {
    const auto znana = m_grupy.constFind(nazwa);
    if (znana != m_grupy.cend()) return *znana;
    const int nowa = static_cast<int>(m_lista.grupy.size());
    m_lista.grupy.push_back({nazwa});
    m_grupy.insert(nazwa, nowa);
    return nowa;
  }

  ListaPominietych& m_lista;
  QHash<QString, int> m_powody;
  QHash<QString, int> m_grupy;
};

}  // namespace

std::optional<ListaPominietych> WczytajPominiete(const QString& plik) {
  QFile wejscie;
  if (OtworzPlik(wejscie, plik, SposobOtwarcia::Odczyt)) return std::nullopt;
  const QByteArray tresc = wejscie.readAll();
  ListaPominietych lista;
  Grupowanie grupowanie(lista);
  // A reason may hold a line feed; a line ends with both characters.
  for (std::string_view reszta(tresc.data(), static_cast<std::size_t>(tresc.size())); !reszta.empty();) {
    const std::size_t koniec = std::min(reszta.find("\r\n"), reszta.size());
    if (koniec > 0) grupowanie.Dodaj(Rozbierz(reszta.substr(0, koniec)));
    reszta.remove_prefix(std::min(koniec + 2, reszta.size()));
  }
  return lista;
}
