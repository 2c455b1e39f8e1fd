#pragma once

class QTableView;

// Gives a grid rows of one height that follows the font, and headers that keep their weight. Tab leaves the
// grid, the arrow keys move within it.
void UlozSiatke(QTableView& siatka);
