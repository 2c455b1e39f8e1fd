#pragma once

#include <functional>
#include <vector>

#include <QObject>

class QWidget;
struct Ustawienia;
struct Ustawienie;

// Binds the controls of a window to the members they are named after: one walk over the table of settings. A
// control that a person changes changes its member at once; Pokaz shows all members.
class Powiazania final : public QObject {
  Q_OBJECT

 public:
  Powiazania(QWidget& okno, Ustawienia& ustawienia);

  // Shows what the members hold; nobody is told of it.
  void Pokaz();

  // Called with the name of a control after its member has followed it.
  std::function<void(const QString& kontrolka)> PoZmianie;

 private Q_SLOTS:
  void Zmieniono();

 private:
  struct Powiazanie {
    const Ustawienie* ustawienie;
    std::vector<QWidget*> kontrolki;  // one, or the buttons of a three-way group
  };

  void Przyjmij(const Powiazanie& powiazanie);

  Ustawienia& m_ustawienia;
  std::vector<Powiazanie> m_powiazania;
  bool m_pokazuje = false;
};
