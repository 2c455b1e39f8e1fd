#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>

#include <QString>
#include <QStringView>

// Begins the line of a text that is meant for whoever looks after the machine: the words of a driver or of a
// library, in its language.
inline constexpr QStringView kSzczegoly = u"Szczegóły: ";

// How a message box shows an error.
enum class KlasaBledu { Blad = 0, Ostrzezenie = 1, Informacja = 2 };

// Base of every error that is meant for a person. Subclasses turn their code into texts; an error is copied
// across a boundary (a worker and the main thread) with Clone() followed by Assign(source).
class EMException : public std::exception {
 public:
  explicit EMException(int kod = 0) : m_kod(kod) {}

  int MacCode() const { return m_kod; }
  // Short title and longer description shown to the user; either may be empty.
  virtual QString MacMessage() const { return m_tytul; }
  virtual QString MacDescription() const { return m_opis; }
  // Both, one under the other, as a message box shows them.
  QString Tresc() const;

  virtual KlasaBledu Klasa() const { return KlasaBledu::Blad; }
  // Names the family of codes: "WD", "Win", "Baza".
  virtual QString Modul() const { return {}; }
  // Caption of the message box.
  virtual QString Naglowek() const { return QStringLiteral("Wystąpił błąd"); }
  virtual std::unique_ptr<EMException> Clone() const { return std::make_unique<EMException>(m_kod); }
  // Takes over code and texts; subclasses also take what only their own class has.
  virtual void Assign(const EMException& zrodlo);

  const char* what() const noexcept override;

  // The program's one presenter of errors; set once by the shell. Without a presenter nothing is shown.
  using Prezenter = std::function<void(const EMException&)>;
  static void UstawPrezenter(Prezenter prezenter);
  static void ShowExceptionNow(const EMException& blad);

 protected:
  void UstawTeksty(QString tytul, QString opis);

 private:
  int m_kod;
  QString m_tytul;
  QString m_opis;
  mutable std::string m_what;
};

// Base of the errors of the database package and of the data model: an error may carry the one that caused
// it.
class EVLTExceptionBase : public EMException {
 public:
  explicit EVLTExceptionBase(int kod, std::shared_ptr<const EMException> przyczyna = nullptr)
      : EMException(kod), m_przyczyna(std::move(przyczyna)) {}

  const EMException* Przyczyna() const { return m_przyczyna.get(); }

 private:
  std::shared_ptr<const EMException> m_przyczyna;
};

// What an error says, with the one that caused it below, and so on.
QString TrescZPrzyczyna(const EMException& blad);
