#pragma once

#include <functional>

class QObject;

// Does the work as an event of the object's thread, whichever thread asks; never when the object goes first.
void Pozniej(QObject& odbiorca, std::function<void()> praca);
