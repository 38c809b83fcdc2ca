#include "piano/klavir.h"

#include "piano/piano_key.h"
#include "platform/base/text.h"
#include "platform/controls/controls.h"
#include "platform/controls/menus.h"
#include "platform/controls/scroll_bar.h"
#include "platform/controls/shapes.h"
#include "shell/names.h"

namespace ratanka::piano {
namespace {

struct Frame {
  int left = 240;  // twips
  int top = 0;
  int right = 5280;
  int bottom = 3000;
};
constexpr Frame kFrame;

constexpr Rgb kBack{0xcf, 0xa2, 0x6e};  // wood
constexpr int kPageOfVolume = 16;

}  // namespace

Klavír::Klavír(Forms& forms, Dialogs& dialogs, MidiOut& midiOut)
    : Form(forms, {.name = names::Klavír,
                   .caption = "Mini klavír - Rátanka",
                   .width = 5565,
                   .height = 3285,
                   .back = kBack,
                   .hasMenu = true,
                   .canMinimise = false,
                   .opening = Opening::besideControls}),
      dialogs_(dialogs),
      piano_(midiOut) {}

void Klavír::build() {
  const auto line = [this](const char* name, int x1, int y1, int x2, int y2) {
    addLine(client(), {.name = name, .x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2});
  };
  line("Line1", kFrame.left, kFrame.top, kFrame.right, kFrame.top);
  line("Line2", kFrame.left, kFrame.top, kFrame.left, kFrame.bottom);
  // A line leaves its last pixel out.
  line("Line3", kFrame.right, kFrame.top, kFrame.right, kFrame.bottom + kTwipsPerPixel);
  line("Line4", kFrame.left, kFrame.bottom, kFrame.right, kFrame.bottom);
  buildKeys();
  buildVolume();
  buildMenu();
}

void Klavír::buildKeys() {
  for (const bool isBlack : {false, true}) {  // the black ones in front
    for (int index = 0; index < kKeys; ++index) {
      const Key& key = kKeyboard.at(index);
      if (key.isBlack != isBlack) continue;
      key_.at(index) = addPianoKey(client(), indexed("key", index), key,
                                   [this, index](bool isDown) { key_Touched(index, isDown); });
    }
  }
}

void Klavír::buildVolume() {
  vol_ = addReversedScrollBar(client(), {.name = "vol",
                                         .place = {720, 2520, 1695, 255},
                                         .left = kMaxVolume,
                                         .right = 0,
                                         .value = kMaxVolume,
                                         .accessibleName = "Hlasitosť"});
  vol_->setPageStep(kPageOfVolume);
  on(vol_, &QScrollBar::valueChanged, [this] { vol_Change(); });
  addImage(client(), {.name = "Image1", .place = {2640, 2400, 480, 480}, .picture = "piano-note"});
  addLabel(client(), {.name = "Label1",
                      .place = {3360, 2520, 1800, 300},
                      .caption = "H l a s i t o s ť ",
                      .type = {.points = 9.75, .bold = true}});
}

void Klavír::buildMenu() {
  QMenu& devices = *addMenu(menuBar(), "midi_devices", "Zvuk Midi");
  device_.clear();
  for (int index = 0; index <= kMaxDevices; ++index) {
    device_.push_back(addMenuItem(
        devices, {.name = indexed("device", index), .visible = false, .checkable = true}));
    on(device_.back(), &QAction::triggered, [this, index] { device_Click(index); });
  }
  QMenu& channels = *addMenu(menuBar(), "ChannelOption", "Kanál");
  chan_.clear();
  for (int index = 0; index < kChannels; ++index) {
    chan_.push_back(addMenuItem(channels, {.name = indexed("chan", index),
                                           .caption = QString::number(index + 1),
                                           .checkable = true}));
    on(chan_.back(), &QAction::triggered, [this, index] { chan_Click(index); });
  }
  QAction* const base = addMenuItem(menuBar(), {.name = "base", .caption = "Výška tónu"});
  on(base, &QAction::triggered, [this] { base_Click(); });
}

void Klavír::Form_Load() {
  const bool isOpened = piano_.load();
  refresh();
  tellWhetherOpened(isOpened);
}

void Klavír::Form_Unload() { piano_.unload(); }

void Klavír::Form_KeyDown(int keyCode) {
  piano_.NoteOn(KeyIndex(keyCode));
  refresh();
}

void Klavír::Form_KeyUp(int keyCode) {
  piano_.NoteOff(KeyIndex(keyCode));
  refresh();
}

void Klavír::keyboardLeaves() {
  piano_.releaseAll();
  refresh();
}

void Klavír::key_Touched(int index, bool isDown) {
  if (isDown) {
    piano_.NoteOn(index);
  } else {
    piano_.NoteOff(index);
  }
  refresh();
}

void Klavír::device_Click(int index) {
  const bool isOpened = piano_.chooseDevice(index);
  refresh();
  tellWhetherOpened(isOpened);
}

void Klavír::tellWhetherOpened(bool isOpened) {
  if (isOpened) return;
  dialogs_.message({.title = "Rátanka",
                    .text = "Nastala chyba v zvuku. Tóny klavíra nebude počuť",
                    .icon = MessageBox::Icon::none});
}

void Klavír::chan_Click(int index) {
  piano_.setChannel(index);
  refresh();
}

void Klavír::base_Click() {
  const auto answer =
      dialogs_.input("Výška tónu", "Vložte prosím novú hodnotu výšky tónu (0 - 111)",
                     std::to_string(piano_.baseNote()));
  if (answer) piano_.answerBaseNote(*answer);
}

void Klavír::vol_Change() { piano_.setVolume(vol_->value()); }

void Klavír::refresh() {
  for (int index = 0; index < kKeys; ++index) {
    key_.at(index)->setChecked(piano_.isPressed(index));
  }
  const std::vector<std::string>& names = piano_.deviceNames();
  for (int index = 0; index < std::ssize(device_); ++index) {
    QAction& item = *device_.at(index);
    item.setVisible(index < std::ssize(names));
    // An "&" would underline a letter.
    if (index < std::ssize(names)) item.setText(ratanka::text(names.at(index)).replace("&", "&&"));
    item.setChecked(index == piano_.curDevice() + 1);
  }
  for (int index = 0; index < std::ssize(chan_); ++index) {
    chan_.at(index)->setChecked(index == piano_.channel());
  }
}

}  // namespace ratanka::piano
