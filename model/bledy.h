#pragma once

#include <memory>

#include <QString>

#include "platform/wyjatek.h"

// Errors that the data model raises on purpose. The code selects title and description in the catalogue; the
// detail (an index, a code, a name) completes the description. A code the catalogue does not hold has empty
// texts and keeps the caption of its range.

// Records, lists, codes, dictionaries, devices: codes 2001 to 2912.
class EVLTWDError final : public EVLTExceptionBase {
 public:
  explicit EVLTWDError(int kod, std::shared_ptr<const EMException> przyczyna = nullptr,
                       QString szczegol = {});

  const QString& Detail() const { return m_szczegol; }

  KlasaBledu Klasa() const override;
  QString Modul() const override;
  QString Naglowek() const override;
  // The same code, without cause and detail.
  std::unique_ptr<EMException> Clone() const override;
  void Assign(const EMException& zrodlo) override;

 private:
  QString m_szczegol;
};

// Document windows and working copies: codes 3001 to 3865.
class EVLTWinError final : public EVLTExceptionBase {
 public:
  explicit EVLTWinError(int kod, std::shared_ptr<const EMException> przyczyna = nullptr,
                        QString szczegol = {});

  const QString& Detail() const { return m_szczegol; }

  KlasaBledu Klasa() const override;
  QString Modul() const override;
  QString Naglowek() const override;
  std::unique_ptr<EMException> Clone() const override;
  void Assign(const EMException& zrodlo) override;

 private:
  QString m_szczegol;
};
