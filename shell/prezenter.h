#pragma once

class Rozmowa;

// Installs the program's presenter of errors: EMException::ShowExceptionNow shows caption, title, description
// and cause in a box over the active window, with the icon of the severity. On another thread than the main
// one the call waits until the main thread, in its event loop, has shown the box. `rozmowa` must outlive the
// last error.
void UstawPrezenterBledow(Rozmowa& rozmowa);
