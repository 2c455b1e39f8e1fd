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

// Asks which database to work with: a new one, to be made in a file or in an empty one of a server,
// or one that is there.
class Tfrm_polaczenie final : public QDialog {
 public:
  Tfrm_polaczenie(QWidget* rodzic, Rozmowa& rozmowa);
  ~Tfrm_polaczenie() override;

  bool NowaBaza() const;
  QString Baza() const;
  // What was typed, the password with it; nothing while no database is named.
  std::optional<ParametryPolaczenia> Parametry() const;

 private:
  void Odswiez();
  void WybierzPlik();

  Rozmowa& m_rozmowa;
  std::unique_ptr<Ui::Tfrm_polaczenie> m_ui;
};

// Makes a new database; the reason when it could not.
using TworzenieBazy = std::function<std::optional<Komunikat>(const ParametryPolaczenia&)>;

// Shows the dialog until it names a database that can be tried; a new one is made. Nothing when the person
// gives up.
std::optional<ParametryPolaczenia> ZapytajOPolaczenie(QWidget* rodzic, Rozmowa& rozmowa,
                                                      const TworzenieBazy& utworz);
