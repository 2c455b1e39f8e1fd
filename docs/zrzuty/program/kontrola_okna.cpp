#include "docs/zrzuty/program/kontrola_okna.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QScreen>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Opis(const QWidget& kontrolka) {
  return QLatin1String(kontrolka.metaObject()->className()) + u' ' + kontrolka.objectName();
}

bool ZTabulatora(const QWidget& kontrolka) {
  return kontrolka.isVisible() && (kontrolka.focusPolicy() & Qt::TabFocus) && !kontrolka.focusProxy();
}

// The tabs of a tab bar have names of their own.
bool MaNazwe(QWidget& kontrolka) {
  if (qobject_cast<QTabBar*>(&kontrolka)) return true;
  const QAccessibleInterface* const opis = QAccessible::queryAccessibleInterface(&kontrolka);
  return opis && !opis->text(QAccessible::Name).isEmpty();
}

bool MiesciSieWLiscie(const QComboBox& lista) {
  QStyleOptionComboBox opcje;
  opcje.initFrom(&lista);
  opcje.editable = lista.isEditable();
  const int miejsce = lista.style()
                          ->subControlRect(QStyle::CC_ComboBox, &opcje, QStyle::SC_ComboBoxEditField, &lista)
                          .width();
  return lista.fontMetrics().horizontalAdvance(lista.currentText()) <= miejsce;
}

bool MieszczaSieNaglowki(const QHeaderView& naglowek) {
  for (int i = 0; i < naglowek.count(); ++i)
    if (naglowek.sectionSizeHint(i) > naglowek.sectionSize(i)) return false;
  return true;
}

bool MiesciSieTekst(const QWidget& kontrolka) {
  if (const auto* const etykieta = qobject_cast<const QLabel*>(&kontrolka)) {
    if (etykieta->wordWrap()) return etykieta->heightForWidth(etykieta->width()) <= etykieta->height();
    return etykieta->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored ||
           etykieta->sizeHint().width() <= etykieta->width();
  }
  if (const auto* const lista = qobject_cast<const QComboBox*>(&kontrolka)) return MiesciSieWLiscie(*lista);
  if (const auto* const naglowek = qobject_cast<const QHeaderView*>(&kontrolka))
    return naglowek->orientation() == Qt::Vertical || MieszczaSieNaglowki(*naglowek);
  if (qobject_cast<const QAbstractButton*>(&kontrolka) || qobject_cast<const QGroupBox*>(&kontrolka)) {
    const QSize trzeba = kontrolka.minimumSizeHint();
    return trzeba.width() <= kontrolka.width() && trzeba.height() <= kontrolka.height();
  }
  return true;
}

// Within one container Tab goes down, and to the right within one row; columns come one after another.
QStringList SkokiTabulatora(const QWidget& okno) {
  QStringList skoki;
  const QWidget* poprzednia = nullptr;
  for (const QWidget* k = okno.nextInFocusChain(); k && k != &okno; k = k->nextInFocusChain()) {
    if (!ZTabulatora(*k) || !okno.isAncestorOf(k)) continue;
    if (poprzednia) {
      const QRect stad(poprzednia->mapTo(&okno, QPoint()), poprzednia->size());
      const QRect tam(k->mapTo(&okno, QPoint()), k->size());
      const bool wyzej = tam.bottom() < stad.top();
      const bool wLewo = tam.right() < stad.left();
      if ((wyzej && tam.left() <= stad.right() && stad.left() <= tam.right()) || (wyzej && wLewo) ||
          (wLewo && tam.bottom() >= stad.top() && tam.top() <= stad.bottom()))
        skoki << Opis(*poprzednia) + u" → "_s + Opis(*k);
    }
    poprzednia = k;
  }
  return skoki;
}

}  // namespace

QStringList WadyOkna(const QWidget& okno) {
  QStringList wady;
  const QSize ekran = okno.screen()->size();
  if (okno.width() > ekran.width() || okno.height() > ekran.height())
    wady << u"większe niż ekran: %1×%2"_s.arg(okno.width()).arg(okno.height());
  for (QWidget* const kontrolka : okno.findChildren<QWidget*>()) {
    if (!kontrolka->isVisible()) continue;
    if (ZTabulatora(*kontrolka) && !MaNazwe(*kontrolka)) wady << u"bez nazwy: "_s + Opis(*kontrolka);
    if (!MiesciSieTekst(*kontrolka)) wady << u"nie mieści się tekst: "_s + Opis(*kontrolka);
  }
  for (const QString& skok : SkokiTabulatora(okno)) wady << u"Tab wraca: "_s + skok;
  return wady;
}
