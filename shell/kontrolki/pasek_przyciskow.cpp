#include "shell/kontrolki/pasek_przyciskow.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

using namespace Qt::Literals::StringLiterals;

void TMStatusButton::UstawDostepny(bool dostepny) {
  m_przycisk->setEnabled(dostepny);
}

TMStatusButtonBar::TMStatusButtonBar(QWidget* rodzic) : QWidget(rodzic), m_uklad(new QHBoxLayout(this)) {
  m_uklad->setContentsMargins(0, 0, 0, 0);
  m_uklad->addStretch();
}

// The way out goes to the far right, apart from the buttons that do something.
TMStatusButton& TMStatusButtonBar::Dodaj(const QString& nazwa, const QString& tekst, const QString& klawisz) {
  auto* const przycisk = new QPushButton(klawisz.isEmpty() ? tekst : tekst + u"  "_s + klawisz, this);
  przycisk->setObjectName(nazwa);
  przycisk->setAccessibleName(tekst);
  przycisk->setAutoDefault(false);
  przycisk->setMinimumSize(przycisk->sizeHint() + QSize(16, 4));
  const bool wyjscie = klawisz == u"Esc";
  m_uklad->insertWidget(wyjscie ? m_uklad->count() : m_uklad->count() - 1, przycisk);
  TMStatusButton& dodany = *m_przyciski.emplace_back(std::make_unique<TMStatusButton>(nazwa, *przycisk));
  connect(przycisk, &QPushButton::clicked, this, [this, &dodany] {
    if (ButtonClick) ButtonClick(dodany);
  });
  auto* const skrot = new QShortcut(QKeySequence(klawisz), this);
  connect(skrot, &QShortcut::activated, przycisk, [przycisk] { przycisk->click(); });
  return dodany;
}

TMStatusButton* TMStatusButtonBar::Przycisk(QStringView nazwa) {
  const auto przycisk = std::find_if(m_przyciski.begin(), m_przyciski.end(),
                                     [nazwa](const auto& p) { return p->IsTheSameName(nazwa); });
  return przycisk == m_przyciski.end() ? nullptr : przycisk->get();
}
