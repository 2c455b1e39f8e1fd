#include "platform/plik_obok.h"

#include <cerrno>
#include <cstdio>

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "platform/nazwa_pliku.h"
#include "platform/trwaly_zapis.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kProb = 100;
constexpr QLatin1String kPoczatek(".zorvik-");
constexpr QLatin1String kKoniec(".tmp");

QString Folder(const QString& sciezka) {
  const qsizetype ukosnik = sciezka.lastIndexOf(u'/');
  return ukosnik < 0 ? u"./"_s : sciezka.left(ukosnik + 1);
}

// A file whose lock is free belongs to nobody any more.
void UsunPorzucone(const QString& folder) {
  const QStringList nazwy =
      QDir(folder).entryList({kPoczatek + u'*' + kKoniec}, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
  for (const QString& nazwa : nazwy) {
    const QByteArray sciezka = BajtyNazwy(folder + nazwa);
    const int deskryptor = open(sciezka.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (deskryptor < 0) continue;
    if (flock(deskryptor, LOCK_EX | LOCK_NB) == 0) unlink(sciezka.constData());
    close(deskryptor);
  }
}

// Rights beyond owner, group and others; a new file would not have them.
bool MaListePraw(const QByteArray& sciezka) {
  return getxattr(sciezka.constData(), "system.posix_acl_access", nullptr, 0) > 0;
}

bool PrzejmijPrawa(int deskryptor, const struct stat& wzor) {
  struct stat nowy;
  if (fstat(deskryptor, &nowy) != 0) return false;
  const bool ten = nowy.st_uid == wzor.st_uid && nowy.st_gid == wzor.st_gid;
  return (ten || fchown(deskryptor, wzor.st_uid, wzor.st_gid) == 0) &&
         fchmod(deskryptor, wzor.st_mode & 07777) == 0;
}

// Fails when somebody has taken the name.
bool NadajNazwe(const QByteArray& z, const QByteArray& na) {
  if (renameat2(AT_FDCWD, z.constData(), AT_FDCWD, na.constData(), RENAME_NOREPLACE) == 0) return true;
  if (errno != EINVAL && errno != ENOSYS) return false;
  return link(z.constData(), na.constData()) == 0 && unlink(z.constData()) == 0;
}

}  // namespace

std::optional<QString> PlikObok::Zacznij(const QString& cel) {
  Porzuc();
  if (cel.isEmpty() || cel.endsWith(u'/')) return u"Brak nazwy pliku"_s;
  m_cel = KoniecDowiazan(cel);
  m_dlaczego.clear();
  const QByteArray nazwa = BajtyNazwy(m_cel);
  struct stat dawny;
  const bool jest = stat(nazwa.constData(), &dawny) == 0;
  if (jest && !S_ISREG(dawny.st_mode)) {
    PiszWMiejscu({});
    return std::nullopt;
  }
  // A file that may not be written stays as it is, even though its folder would let it be replaced.
  const int doZapisu = jest ? open(nazwa.constData(), O_WRONLY | O_CLOEXEC) : -1;
  if (jest && doZapisu < 0) return OpisBleduSystemu();
  UsunPorzucone(Folder(m_cel));
  if (jest && dawny.st_nlink > 1)
    PiszWMiejscu(u"ma też inne nazwy (dowiązania)"_s);
  else if (jest && MaListePraw(nazwa))
    PiszWMiejscu(u"ma własną listę praw dostępu"_s);
  else if (!Utworz())
    PiszWMiejscu(u"leży w folderze, który nie przyjmuje nowych plików"_s);
  else if (jest && !PrzejmijPrawa(m_deskryptor, dawny)) {
    Porzuc();
    PiszWMiejscu(u"ma właściciela i prawa, których nowy plik nie dostałby"_s);
  }
  if (m_obok && doZapisu >= 0) close(doZapisu);
  if (!m_obok) m_deskryptor = doZapisu;
  return std::nullopt;
}

void PlikObok::PiszWMiejscu(const QString& dlaczego) {
  m_sciezka = m_cel;
  m_dlaczego = dlaczego;
}

bool PlikObok::Utworz() {
  for (int i = 0; i < kProb; ++i) {
    const QString losowe = QString::number(QRandomGenerator::system()->generate64(), 36);
    const QString sciezka = Folder(m_cel) + kPoczatek + losowe + kKoniec;
    const QByteArray nazwa = BajtyNazwy(sciezka);
    const int deskryptor = open(nazwa.constData(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    if (deskryptor < 0 && errno == EEXIST) continue;
    if (deskryptor < 0) return false;
    // Another program may have taken the file for a leftover before it was locked.
    struct stat opis;
    if (flock(deskryptor, LOCK_EX | LOCK_NB) == 0 && fstat(deskryptor, &opis) == 0 && opis.st_nlink == 1) {
      m_deskryptor = deskryptor;
      m_sciezka = sciezka;
      return m_obok = true;
    }
    unlink(nazwa.constData());
    close(deskryptor);
  }
  return false;
}

std::optional<QString> PlikObok::Podmien(Istniejacy istniejacy) {
  std::optional<QString> powod;
  if (m_deskryptor >= 0) powod = UtrwalOtwarty(m_deskryptor);
  if (powod && istniejacy == Istniejacy::Zachowaj) {
    Porzuc();
    return powod;
  }
  if (m_obok) {
    const QByteArray z = BajtyNazwy(m_sciezka), na = BajtyNazwy(m_cel);
    const bool podmieniony = istniejacy == Istniejacy::Zachowaj
                                 ? NadajNazwe(z, na)
                                 : std::rename(z.constData(), na.constData()) == 0;
    if (!podmieniony) {
      powod = OpisBleduSystemu();
      Porzuc();
      return powod;
    }
    UtrwalNazwe(m_cel);
  }
  Zamknij();
  return powod;
}

void PlikObok::Porzuc() {
  if (m_obok) unlink(BajtyNazwy(m_sciezka).constData());
  Zamknij();
}

void PlikObok::Zamknij() {
  if (m_deskryptor >= 0) close(m_deskryptor);
  m_deskryptor = -1;
  m_obok = false;
  m_sciezka.clear();
}
