#pragma once

// The plate data update: the download of the month counts from the maker's server
// for the plates window, and the import of a saved copy of the same document
// (window `matimportacion`). Both run the fetch cycle and store every row as it is
// read; only the server update rebuilds the month table of a pane on show.

namespace zafro {

class DescargaMatriculas;
class MatriculasWindow;

// Starts the server update for the plates window; returns at once (it runs by
// timers). The window's hidden cycle controls and `Timer1` are made at the first
// start and kept for the window's life.
void startPlatesUpdate(MatriculasWindow &window);

// The plates window's download machinery, or nullptr before its first update.
DescargaMatriculas *platesUpdateOf(const MatriculasWindow &window);

// The plates window's `Timer1` step: the data date on the status line and, with the
// current-format pane showing, its table read again.
void platesTimer1Tick(MatriculasWindow &window);

// Shows the import window.
void showPlatesImport();

} // namespace zafro
