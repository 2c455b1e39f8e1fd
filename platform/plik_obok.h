#pragma once

#include <optional>

#include <QString>

// A file that takes the place of its target when it is done: until then it is written beside it, so that a
// killed program leaves the old file whole. A link is followed: what it leads to is replaced. The new file
// has the rights and the owner of the old one; where they cannot be kept, where the old one has other names
// that would keep the old text, and where the folder takes no new file, the target itself is written. Order
// of calls: Zacznij; the file Sciezka is opened, written and closed; Podmien or Porzuc.
class PlikObok {
 public:
  enum class Istniejacy { Zastap, Zachowaj };

  PlikObok() = default;
  ~PlikObok() { Porzuc(); }
  PlikObok(const PlikObok&) = delete;
  PlikObok& operator=(const PlikObok&) = delete;

  // Removes what killed programs have left in the folder. The system's reason when the target may not be
  // written.
  std::optional<QString> Zacznij(const QString& cel);
  // Where to write.
  const QString& Sciezka() const { return m_sciezka; }
  // Why the target itself is written; empty when it is not, or cannot be replaced (a device).
  const QString& DlaczegoWMiejscu() const { return m_dlaczego; }
  bool Zaczety() const { return !m_sciezka.isEmpty(); }
  bool Obok() const { return m_obok; }

  // Waits for the disk, then puts the file in its place. Zastap does it whatever the disk says, for what was
  // written is to stay: the reason then tells that it is not sure to. Zachowaj makes a file that the disk
  // has, or none, also when somebody has taken the name meanwhile.
  std::optional<QString> Podmien(Istniejacy istniejacy = Istniejacy::Zastap);
  // Removes what was written beside.
  void Porzuc();

 private:
  bool Utworz();
  void PiszWMiejscu(const QString& dlaczego);
  void Zamknij();

  QString m_cel;
  QString m_sciezka;
  QString m_dlaczego;
  int m_deskryptor = -1;  // its lock tells other programs that the file is in use
  bool m_obok = false;
};
