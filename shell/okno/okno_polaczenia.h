#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QDialog>

#include "exchange/komunikat.h"
#include "platform/baza/polaczenie.h"

class Rozmowa;
namespace Ui {
class Tfrm_polaczenie;
}

// For people: where the database is, whole, and without a password.
QString AdresBazy(const ParametryPolaczenia& parametry);

// Makes a new database; the reason when it could not.
using TworzenieBazy = std::function<std::optional<Komunikat>(const ParametryPolaczenia&)>;

// Connects to a database, which is made first when it is to be a new one; the reason when it could not.
using ProbaPolaczenia = std::function<std::optional<QString>(const ParametryPolaczenia&, bool nowa)>;

// What is known before the person is asked.
struct DotychczasowaBaza {
  std::optional<ParametryPolaczenia> adres =
      std::nullopt;                             // nothing: the program is started for the first time
  std::optional<QString> powod = std::nullopt;  // why it cannot be reached
};

// Asks which database to work with: one that is there, at first the one used so far, or a new one, to be made
// in a file or in an empty database of a server. The dialog itself tries what was named; while that fails it
// stays with all that was typed and says why. Accepted: the connection stands. A new database takes a choice
// of its own, and a question when it is to take the place of another one: no Enter alone leads to it.
class Tfrm_polaczenie final : public QDialog {
 public:
  Tfrm_polaczenie(QWidget* rodzic, Rozmowa& rozmowa, DotychczasowaBaza dotychczasowa, ProbaPolaczenia proba);
  ~Tfrm_polaczenie() override;

  void accept() override;

 private:
  bool NowaBaza() const;
  QString Baza() const;
  // What was typed, the password with it or, at the address used so far, the one remembered; nothing while no
  // database is named.
  std::optional<ParametryPolaczenia> Parametry() const;
  // Each of the two choices keeps what was typed for it.
  void ZmienRodzaj();
  void Odswiez();
  void PokazPowod(const QString& powod);
  void WybierzPlik();

  Rozmowa& m_rozmowa;
  const DotychczasowaBaza m_dotychczasowa;
  const ProbaPolaczenia m_proba;
  std::unique_ptr<Ui::Tfrm_polaczenie> m_ui;
  QString m_adresDrugiego;            // typed for the choice that is not made
  std::optional<QString> m_nieudany;  // address of the last attempt
};
