#pragma once

namespace ratanka {

// For a handler that is a loop itself. Their handlers run inside.

// Handles all events that are pending.
void letEventsThrough();

// Sleeps until an event has been handled, at the latest until so many seconds (above 0) are over.
void awaitEvents(double seconds);

}  // namespace ratanka
