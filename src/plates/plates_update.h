#pragma once

// The plate data update: the download of the month counts from the maker's server
// and the import of a saved copy of the same document (window `matimportacion`).
//
// Not built yet. The plates window already hands over at every place where an update
// or an import starts; until the fetch cycle arrives these entry points do nothing,
// so the stored counts stay as they are.

namespace zafro {

class MatriculasWindow;

// Starts the server update for the plates window; returns at once (it runs by timers).
void startPlatesUpdate(MatriculasWindow &window);

// Shows the import window.
void showPlatesImport();

} // namespace zafro
