#pragma once

namespace ratanka {

// The machine's sound devices have no threads and no time of their own here: they play when they
// are told to, so that every input has the same outcome each time. Links in place of the library's
// own.

// Plays so many times what a device plays at a time, and tells the loudest sample of it, 1 being
// full scale; silence where nothing has opened a device.
double play(int times);

}  // namespace ratanka
