#pragma once

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

// For the child, before the program starts in it.

// The superuser may write everything and give files away unless this is taken from him.
inline void BezWladzyNadPlikami() {
  if (geteuid() != 0) return;
  prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
  prctl(PR_CAPBSET_DROP, CAP_CHOWN);
}

// No file takes more than a megabyte.
inline void MalyDysk() {
  const rlimit limit{1 << 20, 1 << 20};
  setrlimit(RLIMIT_FSIZE, &limit);
}
