// The level that temporary objects of the handle maps are made at.
#pragma once

// How many message loops run inside others on this thread. A loop inside a handler raises it, so that its
// idle time deletes only what was made since: the handler still uses the objects it got before.
unsigned& TemporaryLevel();

// Deletes the temporary objects of all handle maps of this thread at the present level.
void DeleteTemporaryObjects();
