#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <QString>

#include "exchange/komunikat.h"
#include "platform/plik_tekstowy.h"

class IPostep;
class Liczniki;

// Names of the skipped-records files of all run kinds; nothing else may be written over them.
inline constexpr std::u16string_view kPominieteTowary = u"POMINIETE.TXT";
inline constexpr std::u16string_view kPominieciKontrahenci = u"POMINIECI.TXT";
inline constexpr std::u16string_view kPlikiPominietych[] = {kPominieteTowary, kPominieciKontrahenci};

// The skipped-records file of a run: one line per problem, "code | name | message" or, for contractors, "tax
// number | name | message", in Windows-1250. Lines belong to the open batch: they are written when it commits
// and forgotten when it is lost. Order of calls: Otworz; for every record NowyRekord, then Zglos as often as
// needed; Zatwierdz or Porzuc; Zamknij.
class RaportProblemow {
 public:
  RaportProblemow(IPostep& postep, Liczniki& liczniki) : m_postep(postep), m_liczniki(liczniki) {}

  // Creates the file (empty) in `katalog`, with a warning in `zapasowy` when that fails. A refusal when both
  // fail. A link of that name is replaced, not followed: what it leads to may be the input or the database.
  std::optional<Komunikat> Otworz(const QString& katalog, const QString& nazwaPliku, const QString& zapasowy);
  // The folder a file goes to when none was chosen: that of the program itself.
  static QString KatalogProgramu();
  // "C:\" on Windows, the user's data folder elsewhere.
  static QString KatalogZapasowy();

  // The two texts that begin every line of this record.
  void NowyRekord(const QString& pierwszy, const QString& drugi);
  // Adds a line. A counted problem raises the skipped counter, once per record however many problems it has.
  void Zglos(const QString& komunikat, bool liczony = true);
  // Whether a problem of the record in hand has been counted.
  bool RekordPoliczony() const { return m_policzony; }

  void Zatwierdz();
  void Porzuc();
  void Zamknij();

  // Empty before Otworz.
  const QString& Sciezka() const { return m_sciezka; }

 private:
  void OglosBladZapisu();

  IPostep& m_postep;
  Liczniki& m_liczniki;
  TMFile m_plik;
  QString m_sciezka;
  QString m_pierwszy, m_drugi;
  bool m_policzony = false;
  bool m_bladOgloszony = false;
  std::string m_linie;  // of the open batch, as bytes of the file; the last line end is added by the file
};
