#include "shell/okno/powiazania.h"

#include <algorithm>

#include <QLineEdit>
#include <QMetaProperty>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QValidator>

#include "ustawienia/tabela_ustawien.h"
#include "ustawienia/ustawienia.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// What a person changes in a control of each class. Its text is that of the stored setting.
constexpr struct {
  const char* klasa;
  const char* wlasciwosc;
} kWlasciwosci[] = {
    {"QAbstractButton", "checked"}, {"QComboBox", "currentIndex"}, {"QTabWidget", "currentIndex"},
    {"QSpinBox", "value"},          {"QLineEdit", "text"},
};

QMetaProperty Wlasciwosc(const QWidget& kontrolka) {
  for (const auto& [klasa, wlasciwosc] : kWlasciwosci)
    if (kontrolka.inherits(klasa)) {
      const QMetaObject* const opis = kontrolka.metaObject();
      return opis->property(opis->indexOfProperty(wlasciwosc));
    }
  return {};
}

QString Odczytaj(const QWidget& kontrolka) {
  const QVariant wartosc = Wlasciwosc(kontrolka).read(&kontrolka);
  return wartosc.typeId() == QMetaType::Bool ? QString::number(wartosc.toInt()) : wartosc.toString();
}

// A control that shows the value already keeps its cursor and its selection.
void Wpisz(QWidget& kontrolka, const QString& tekst) {
  if (Odczytaj(kontrolka) == tekst) return;
  // Loaded settings may leave a whole group of radio buttons unchecked; a click never does.
  auto* const wybor = qobject_cast<QRadioButton*>(&kontrolka);
  const bool odznacz = wybor && tekst == u"0";
  if (odznacz) wybor->setAutoExclusive(false);
  Wlasciwosc(kontrolka).write(&kontrolka, tekst);
  if (odznacz) wybor->setAutoExclusive(true);
}

std::vector<QWidget*> Kontrolki(const QWidget& okno, const Ustawienie& ustawienie) {
  std::vector<QWidget*> kontrolki;
  const auto dodaj = [&](std::string_view nazwa) {
    if (nazwa.empty()) return;
    QWidget* const kontrolka = okno.findChild<QWidget*>(QLatin1String(QByteArrayView(nazwa)));
    Q_ASSERT_X(kontrolka, "Powiazania", nazwa.data());
    if (kontrolka) kontrolki.push_back(kontrolka);
  };
  dodaj(ustawienie.kontrolka);
  for (const std::string_view nazwa : ustawienie.przyciski) dodaj(nazwa);
  return kontrolki;
}

// Lets a person type what the setting takes.
class WalidatorUstawienia final : public QValidator {
 public:
  WalidatorUstawienia(const Ustawienie& ustawienie, QObject* rodzic)
      : QValidator(rodzic), m_ustawienie(ustawienie) {}

  State validate(QString& tekst, int& /*pozycja*/) const override {
    Ustawienia proba;
    return m_ustawienie.wpisz(proba, tekst) ? Acceptable : Invalid;
  }

 private:
  const Ustawienie& m_ustawienie;
};

// Radio buttons that are stored one by one change together.
bool Rodzenstwo(const QObject* a, const QObject* b) {
  return a == b || (a->inherits("QRadioButton") && b->inherits("QRadioButton") && a->parent() == b->parent());
}

}  // namespace

Powiazania::Powiazania(QWidget& okno, Ustawienia& ustawienia) : m_ustawienia(ustawienia) {
  const QMetaMethod zmieniono = metaObject()->method(metaObject()->indexOfSlot("Zmieniono()"));
  for (const Ustawienie& ustawienie : TabelaUstawien()) {
    Powiazanie powiazanie{&ustawienie, Kontrolki(okno, ustawienie)};
    if (powiazanie.kontrolki.empty()) continue;
    for (QWidget* const kontrolka : powiazanie.kontrolki) {
      connect(kontrolka, Wlasciwosc(*kontrolka).notifySignal(), this, zmieniono);
      if (auto* const linia = qobject_cast<QLineEdit*>(kontrolka))
        linia->setValidator(new WalidatorUstawienia(ustawienie, linia));
    }
    m_powiazania.push_back(std::move(powiazanie));
  }
}

void Powiazania::Pokaz() {
  const QScopedValueRollback pokazuje(m_pokazuje, true);
  for (const auto& [ustawienie, kontrolki] : m_powiazania) {
    const QString tekst = ustawienie->odczytaj(m_ustawienia);
    if (ustawienie->przyciski.empty()) {
      Wpisz(*kontrolki.front(), tekst);
      continue;
    }
    for (std::size_t i = 0; i < kontrolki.size(); ++i)
      Wpisz(*kontrolki[i], tekst == QString::number(i + 1) ? u"1"_s : u"0"_s);
  }
}

void Powiazania::Zmieniono() {
  if (m_pokazuje) return;
  const QObject* const kontrolka = sender();
  for (const Powiazanie& powiazanie : m_powiazania)
    if (std::any_of(powiazanie.kontrolki.begin(), powiazanie.kontrolki.end(),
                    [&](const QWidget* inna) { return Rodzenstwo(kontrolka, inna); }))
      Przyjmij(powiazanie);
  if (PoZmianie) PoZmianie(kontrolka->objectName());
}

// A three-way group is stored as the number of its checked button, the last one when none of the others is.
void Powiazania::Przyjmij(const Powiazanie& powiazanie) {
  const auto& [ustawienie, kontrolki] = powiazanie;
  if (ustawienie->przyciski.empty()) {
    ustawienie->wpisz(m_ustawienia, Odczytaj(*kontrolki.front()));
    return;
  }
  const auto zaznaczony = std::find_if(kontrolki.begin(), kontrolki.end() - 1,
                                       [](const QWidget* k) { return Odczytaj(*k) == u"1"; });
  ustawienie->wpisz(m_ustawienia, QString::number(zaznaczony - kontrolki.begin() + 1));
}
