#pragma once

#include <functional>

namespace ratanka {

// The machine's sound libraries. They are started by the first of these, stay so until the program
// ends, install no handlers of signals and say nothing on stderr. For one thread alone: they don't
// like two to open, load or close something at the same moment.
class SoundSystem {
 public:
  SoundSystem();

  // Whether devices can be opened now; a sound server may come later.
  bool isReady() const;

  // Has `open` open a device; it says whether it could. Where it couldn't, and no device is running
  // or kept, it's asked once more with the libraries started anew: they may be bound to a sound
  // server that has ended. All devices are closed then.
  bool open(const std::function<bool()>& open) const;
  // How often the libraries were started anew: a device of an earlier age isn't there any more, and
  // its number may be another's.
  unsigned age() const;
  // For who can't forget a device: as long as it is kept the libraries aren't started anew.
  void keepDevices(bool keep) const;
  // The devices that run, a bit for each number. One that went with its sound server has stopped,
  // though nobody closed it.
  unsigned runningDevices() const;
};

}  // namespace ratanka
