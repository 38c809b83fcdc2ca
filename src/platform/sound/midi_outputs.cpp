#include <RtMidi.h>
#include <alsa/asoundlib.h>

#include <array>
#include <memory>
#include <string>

#include "platform/midi_out.h"
#include "platform/sound/makers.h"
#include "platform/sound/sound_system.h"
#include "platform/sound/synthesiser.h"

namespace ratanka {
namespace {

constexpr std::size_t kLongestName = 31;  // characters
constexpr int kFailed = 1;

// Looked for beforehand, since a connection that fails is told of on stderr.
bool hasSystemMidi() {
  snd_seq_t* sequencer = nullptr;
  if (snd_seq_open(&sequencer, "default", SND_SEQ_OPEN_OUTPUT, 0) < 0) return false;
  snd_seq_close(sequencer);
  return true;
}

// A connection to the system's MIDI; a null pointer where there is none.
std::unique_ptr<RtMidiOut> connect() {
  const SoundSystem system;  // for its silence
  if (!hasSystemMidi()) return nullptr;
  try {
    auto connection = std::make_unique<RtMidiOut>(RtMidi::LINUX_ALSA, "Rátanka");
    // What fails later is seen by its result.
    connection->setErrorCallback([](RtMidiError::Type, const std::string&, void*) {});
    return connection;
  } catch (const RtMidiError&) {
    return nullptr;
  }
}

// The first characters of a UTF-8 text.
std::string cut(const std::string& name) {
  std::size_t characters = 0;
  std::size_t end = 0;
  for (; end < name.size(); ++end) {
    const bool isStart = (static_cast<unsigned char>(name[end]) & 0xc0) != 0x80;
    if (isStart && ++characters > kLongestName) break;
  }
  return name.substr(0, end);
}

// The built-in synthesiser as the mapper, the system's outputs as devices.
class MidiOutputs : public MidiOut {
 public:
  explicit MidiOutputs(std::string soundFont) : soundFont_(std::move(soundFont)) {}

  int midiOutGetNumDevs() override {
    const auto connection = connect();
    return connection ? static_cast<int>(connection->getPortCount()) : 0;
  }

  std::string midiOutGetDevCapsA(int device) override {
    const auto connection = connect();
    return connection ? cut(connection->getPortName(static_cast<unsigned>(device))) : "";
  }

  int midiOutOpen(int device) override {
    midiOutClose();
    if (device == kMidiMapper) {
      synthesiser_ = Synthesiser::open(soundFont_);
      return synthesiser_ ? 0 : kFailed;
    }
    output_ = connect();
    if (output_) output_->openPort(static_cast<unsigned>(device), "Klavír");
    if (output_ && output_->isPortOpen()) return 0;
    output_.reset();
    return kFailed;
  }

  void midiOutShortMsg(std::uint32_t message) override {
    if (synthesiser_) synthesiser_->send(message);
    if (!output_) return;
    const std::array<unsigned char, 3> bytes = {static_cast<unsigned char>(message),
                                                static_cast<unsigned char>(message >> 8),
                                                static_cast<unsigned char>(message >> 16)};
    const bool hasOneDatum = (bytes[0] & 0xe0) == 0xc0;
    output_->sendMessage(bytes.data(), hasOneDatum ? 2 : 3);
  }

  void midiOutClose() override {
    synthesiser_.reset();
    output_.reset();
  }

 private:
  std::string soundFont_;
  std::unique_ptr<Synthesiser> synthesiser_;
  std::unique_ptr<RtMidiOut> output_;
};

}  // namespace
}  // namespace ratanka

ratanka::MidiOut* ratankaMakeMidiOut(const char* soundFont) {
  return new ratanka::MidiOutputs(soundFont);
}
