#include "blocks/options_form.h"

#include <QApplication>

#include "platform/base/text.h"
#include "platform/controls/controls.h"
#include "platform/forms/desktop.h"
#include "platform/forms/forms.h"
#include "platform/keyboard/keys.h"
#include "platform/settings/ini_file.h"
#include "shell/names.h"

namespace ratanka::blocks {

frmOptions::frmOptions(Forms& forms, Dialogs& dialogs, Options& options, QString settingsFile)
    : Form(forms, {.name = names::frmOptions,
                   .caption = "Konfigurácia TETRIS",
                   .width = 4200,
                   .height = 2400,
                   .back = kCard,
                   .isDialog = true}),
      dialogs_(dialogs),
      options_(options),
      settingsFile_(std::move(settingsFile)) {}

void frmOptions::build() {
  addLabel(client(), {.name = "Label1",
                      .place = {300, 285, 900, 300},
                      .caption = "LEVEL",
                      .type = {.points = 9.75, .bold = true}});
  txtStartingLevel_ = addTextBox(
      client(),
      {.name = "txtStartingLevel", .place = {1200, 225, 900, 390}, .type = {.points = 9.75}});
  txtStartingLevel_->setAccessibleName("LEVEL");
  chkFillLines_ = addCheckBox(client(), {.name = "chkFillLines",
                                         .place = {300, 810, 3600, 330},
                                         .caption = "Zaplniť hraciu plochu  kockami"});
  chkPlaySounds_ = addCheckBox(
      client(),
      {.name = "chkPlaySounds", .place = {300, 1200, 3600, 330}, .caption = "Zapnúť zvuk"});
  const auto addPush = [this](const char* name, int left, const char* caption) {
    return addButton(client(), {.name = name,
                                .place = {left, 1740, 1260, 450},
                                .caption = caption,
                                .type = {.points = 9.75}});
  };
  cmdOk_ = addPush("cmdOk", 780, "OK");
  command1_ = addPush("Command1", 2160, "Zrušiť");
  on(txtStartingLevel_, &TextBox::lostFocus, [this] { txtStartingLevel_LostFocus(); });
  for (QAbstractButton* const button :
       std::initializer_list<QAbstractButton*>{chkFillLines_, chkPlaySounds_, cmdOk_, command1_}) {
    on(button, &QAbstractButton::released, [this] { checkLevelIfDue(); });
  }
  on(cmdOk_, &Button::clicked, [this] { cmdOk_Click(); });
  on(command1_, &Button::clicked, [this] { Command1_Click(); });
}

void frmOptions::Form_Load() {
  centreOverActiveWindow(window());
  isOpen_ = false;
}

void frmOptions::Form_Activate() {
  if (isOpen_) return;
  isOpen_ = true;
  isCheckDue_ = false;
  txtStartingLevel_->setText(ratanka::text(options_.startingLevelText()));
  cmdOk_->setFocus();  // not the level, which may be empty: leaving it so would bring its box
  chkFillLines_->setChecked(options_.fillsLines());
  chkPlaySounds_->setChecked(options_.playsSounds());
}

void frmOptions::Form_KeyDown(int keyCode) {
  const bool isOnButton = cmdOk_->hasFocus() || command1_->hasFocus();
  if (keyCode == key::kEnter && !isOnButton) {
    if (txtStartingLevel_->hasFocus()) checkLevel();
    cmdOk_Click();
  } else if (keyCode == key::kEscape) {
    close();
  }
}

void frmOptions::txtStartingLevel_LostFocus() {
  if (!isOpen_) return;
  if (QApplication::mouseButtons().testFlag(Qt::LeftButton)) {
    isCheckDue_ = true;
  } else {
    checkLevel();
  }
}

void frmOptions::checkLevelIfDue() {
  if (isCheckDue_) checkLevel();
}

void frmOptions::checkLevel() {
  isCheckDue_ = false;
  const auto box = refusal(txtStartingLevel_->text().toStdString());
  if (!box) return;
  dialogs_.message(*box);
  txtStartingLevel_->setText(ratanka::text(options_.startingLevelText()));
}

void frmOptions::cmdOk_Click() {
  accept(options_, txtStartingLevel_->text().toStdString(), chkFillLines_->isChecked(),
         chkPlaySounds_->isChecked());
  writeIniValues(settingsFile_, kSettingsSection, settings(options_));
  close();
}

void frmOptions::Command1_Click() { close(); }

void frmOptions::close() {
  isOpen_ = false;
  forms().hide(names::frmOptions);
}

}  // namespace ratanka::blocks
