#include "plates/plates_update.h"

namespace zafro {

void startPlatesUpdate(MatriculasWindow &)
{
    // Nothing to do until the fetch cycle exists: the window keeps its stored data.
}

void showPlatesImport()
{
    // The import window comes with the fetch cycle.
}

} // namespace zafro
