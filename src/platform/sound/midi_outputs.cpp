#include <RtMidi.h>
#include <alsa/asoundlib.h>

#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/plain/plain_text.h"
#include "platform/ports/midi_out.h"
#include "platform/sound/makers.h"
#include "platform/sound/sound_system.h"
#include "platform/sound/synthesiser.h"
#include "platform/sound/worker.h"

namespace ratanka {
namespace {

constexpr int kLongestName = 31;  // characters
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
  std::string_view rest = name;
  for (int i = 0; i < kLongestName && !rest.empty(); ++i) takeCharacter(rest);
  return name.substr(0, name.size() - rest.size());
}

// What the worker says to a question; an empty value where it says nothing in time.
template <typename Answer>
Answer ask(std::function<Answer()> question) {
  const auto answer = std::make_shared<Answer>();
  const bool isAnswered =
      soundWorker().doInTime([answer, question = std::move(question)] { *answer = question(); });
  return isAnswered ? *answer : Answer();
}

struct Output {
  std::unique_ptr<Synthesiser> synthesiser;
  std::unique_ptr<RtMidiOut> port;
  std::atomic<bool> isOpen = false;  // all is there from then on

  void open(int device, const std::string& soundFont) {
    if (device == MidiOut::kMidiMapper) {
      synthesiser = Synthesiser::open(soundFont);
      isOpen = synthesiser != nullptr;
      return;
    }
    port = connect();
    if (port) port->openPort(device, "Klavír");
    isOpen = port && port->isPortOpen();
  }
};

// The built-in synthesiser as the mapper, the system's outputs as devices. The worker opens and
// closes them, and a message goes out at once. An output that takes long to open counts as open,
// and sounds once it is: the machine may be slow, or its sound server busy.
class MidiOutputs : public MidiOut {
 public:
  explicit MidiOutputs(std::string soundFont) : soundFont_(std::move(soundFont)) {}
  ~MidiOutputs() override {
    close();
    soundWorker().finish();
  }
  MidiOutputs(const MidiOutputs&) = delete;
  MidiOutputs& operator=(const MidiOutputs&) = delete;

  int midiOutGetNumDevs() override {
    return ask<int>([] {
      const auto connection = connect();
      return connection ? static_cast<int>(connection->getPortCount()) : 0;
    });
  }

  std::string midiOutGetDevCapsA(int device) override {
    return ask<std::string>([device] {
      const auto connection = connect();
      return connection ? cut(connection->getPortName(device)) : "";
    });
  }

  int midiOutOpen(int device) override {
    close();
    output_ = std::make_shared<Output>();
    soundWorker().add(
        [output = output_, device, soundFont = soundFont_] { output->open(device, soundFont); });
    if (!soundWorker().finish() || output_->isOpen) return 0;
    close();
    return kFailed;
  }

  void midiOutShortMsg(std::uint32_t message) override {
    if (!output_ || !output_->isOpen) return;
    if (output_->synthesiser) output_->synthesiser->send(message);
    if (!output_->port) return;
    const std::array<unsigned char, 3> bytes = {static_cast<unsigned char>(message),
                                                static_cast<unsigned char>(message >> 8),
                                                static_cast<unsigned char>(message >> 16)};
    const bool hasOneDatum = (bytes[0] & 0xe0) == 0xc0;
    output_->port->sendMessage(bytes.data(), hasOneDatum ? 2 : 3);
  }

  void midiOutClose() override { close(); }

 private:
  std::string soundFont_;
  std::shared_ptr<Output> output_;  // what is open

  void close() {
    if (output_) soundWorker().release(std::move(output_));
  }
};

}  // namespace
}  // namespace ratanka

ratanka::MidiOut* ratankaMakeMidiOut(const char* soundFont) {
  return new ratanka::MidiOutputs(soundFont);
}
