#pragma once

#include <optional>

#include <QString>

// What stands behind a path, links followed. Looked at without opening: a pipe would wait for its other end.
enum class RodzajPliku { Brak, Zwykly, Folder, Potok, Urzadzenie, Inny };

RodzajPliku RodzajPlikuSciezki(const QString& sciezka);
// "folderem", "potokiem"…; empty for a regular file and for none.
QString CzymJest(RodzajPliku rodzaj);

// 0 where there is no file.
qint64 RozmiarPliku(const QString& sciezka);

// Which file it is, whatever it is called: device and inode. Two paths to one file are equal through links of
// both kinds; a path remembered and asked again tells that the file was deleted or another put in its place.
// Where there is no file yet, it is the place that one would take: the folder and the name in it.
class TozsamoscPliku {
 public:
  // Links followed. Nothing when the folder does not exist either.
  static std::optional<TozsamoscPliku> Sciezki(const QString& sciezka);
  // The place of a name, a link not followed.
  static std::optional<TozsamoscPliku> Miejsca(const QString& sciezka);
  // An open file's; nothing when the descriptor is not open.
  static std::optional<TozsamoscPliku> Otwartego(int deskryptor);

  // False for a place.
  bool Istnieje() const { return m_nazwa.isEmpty(); }
  bool operator==(const TozsamoscPliku&) const = default;

 private:
  TozsamoscPliku(quint64 urzadzenie, quint64 numer, QString nazwa = {})
      : m_urzadzenie(urzadzenie), m_numer(numer), m_nazwa(std::move(nazwa)) {}

  quint64 m_urzadzenie;
  quint64 m_numer;
  QString m_nazwa;  // of a place, whose folder the numbers are
};
