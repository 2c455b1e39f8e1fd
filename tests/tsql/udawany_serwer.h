#pragma once

#include <QStringList>

#include "platform/baza/dialekt_tsql.h"

// The T-SQL dialect of a server that is a file: the program speaks to it as to any server of the family, the
// texts are noted in the server's words, and the file runs what means the same to SQLite.
class UdawanySerwer final : public Tsql {
 public:
  using Tsql::Tsql;

  std::string Przeloz(std::string_view sql) const override;

  // What is noted from here on stands under that title.
  void Rozdzial(const QString& tytul) { m_rozdzial = tytul; }
  // Notes a text that only a connection to a server runs.
  void Zapisz(const std::string& sql) const;

  struct Polecenie {
    QString rozdzial, tresc;
  };
  // Every text once, as it came first, spread over lines.
  const std::vector<Polecenie>& Polecenia() const { return m_polecenia; }

 private:
  QString m_rozdzial;
  mutable std::vector<Polecenie> m_polecenia;
};
