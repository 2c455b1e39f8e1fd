#pragma once

#include <atomic>

// Ctrl-C, the request to end and the closed terminal, taken as a wish to stop between two records.
namespace przerwanie {

// From now on SIGINT, SIGTERM and SIGHUP only raise the flag, every time: there is no second, harder stop. A
// closed pipe and a file-size limit become errors of the write that meets them, so that the run can end in
// order.
void Przechwyc();

const std::atomic<bool>& Zazadane();

}  // namespace przerwanie
