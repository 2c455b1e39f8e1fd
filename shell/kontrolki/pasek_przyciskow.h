#pragma once

#include <functional>
#include <vector>

#include <QWidget>

class QHBoxLayout;
class QPushButton;

// One button of a bar, known by its name.
class TMStatusButton {
 public:
  TMStatusButton(QString nazwa, QPushButton& przycisk) : m_nazwa(std::move(nazwa)), m_przycisk(&przycisk) {}

  const QString& Name() const { return m_nazwa; }
  // Regardless of case.
  bool IsTheSameName(QStringView nazwa) const { return nazwa.compare(m_nazwa, Qt::CaseInsensitive) == 0; }
  void UstawDostepny(bool dostepny);

 private:
  QString m_nazwa;
  QPushButton* m_przycisk;
};

// The row of buttons below a page or a dialog; each shows its text with its key. A key works wherever the
// focus is, as long as the bar is visible: a bar on a hidden page leaves the key to the one in sight.
class TMStatusButtonBar : public QWidget {
 public:
  explicit TMStatusButtonBar(QWidget* rodzic = nullptr);

  // Buttons stand in the order in which they were added. `klawisz`: "F2", "Esc".
  TMStatusButton& Dodaj(const QString& nazwa, const QString& tekst, const QString& klawisz);
  // Null when there is none.
  TMStatusButton* Przycisk(QStringView nazwa);

  std::function<void(const TMStatusButton&)> ButtonClick;

 private:
  QHBoxLayout* m_uklad;
  std::vector<std::unique_ptr<TMStatusButton>> m_przyciski;
};
