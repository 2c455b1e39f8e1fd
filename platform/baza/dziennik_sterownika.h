#pragma once

// psqlODBC asks the list of drivers (odbcinst.ini) whether it keeps a log in the folder for temporary files,
// and goes by that before a connection has told its own settings and after it has ended: Debian's list says
// yes. From here on the drivers of this process read a copy of the list that says no, held in memory alone.
// To be called before a connection; without such a file system the list stays as it is.
void WylaczDziennikSterownika();
