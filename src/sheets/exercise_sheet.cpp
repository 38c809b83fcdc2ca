#include "sheets/exercise_sheet.h"

#include <QPainter>

#include "platform/base/data_files.h"
#include "platform/base/text.h"
#include "platform/forms/desktop.h"
#include "platform/forms/forms.h"
#include "platform/forms/timer.h"
#include "platform/keyboard/keys.h"
#include "shell/names.h"
#include "shell/rules/shape.h"
#include "shell/sheet_list.h"

namespace ratanka::sheets {
namespace {

// The edge of the drawn book, its corners cut away.
constexpr Point kOutline[] = {
    {10, 6},    {26, 5},    {30, 7},    {250, 7},   {251, 8},   {253, 5},   {258, 10},
    {262, 10},  {262, 11},  {283, 11},  {287, 9},   {288, 6},   {291, 6},   {291, 8},
    {512, 8},   {514, 7},   {531, 7},   {531, 25},  {529, 26},  {528, 422}, {530, 423},
    {531, 438}, {529, 440}, {519, 441}, {516, 439}, {516, 498}, {27, 498},  {27, 443},
    {15, 443},  {11, 441},  {9, 439},   {8, 424},   {10, 422},  {11, 6},    {26, 6},
};

const MessageBox kEmptyBox{
    .title = "Chyba - nebolo zadané číslo",
    .text = "Okienko nesmie byť prázdne, alebo obsahovať TEXT!\r\n Vždy zadajte číslo - prosím"};

const MessageBox kNothingRight{.title = "Rátanka pre najmenších",
                               .text =
                                   "Miláčik, doposiaľ si nevypočítal jediný príklad správne. \r\n"
                                   "Je to náhoda, však?\r\n"
                                   "Sústreď sa - ideme znova..."};

// A number that a listener hears with its meaning.
void show(QLabel& label, const QString& meaning, int number) {
  label.setText(QString::number(number));
  label.setAccessibleName(meaning + label.text());
}

}  // namespace

ExerciseSheet::ExerciseSheet(const SheetServices& services, SheetDesign design)
    : Form(services.forms, {.name = design.name,
                            .caption = "Malá Rátanka",
                            .width = 8040,
                            .height = 7515,
                            .hasBorder = false,
                            .picture = "sheet-page",
                            .pictureSize = {533, 499}}),
      services_(services),
      design_(std::move(design)),
      worksheet_(design_.percentage) {}

void ExerciseSheet::Form_Load() {
  centreOnScreen(window());
  kniha_ = AnimatedCursor::load(dataFile("kniha.ANI"));
  cutTo(GetFormRegion(kOutline));
  worksheet_.beginVisit(design_.ShowStart(services_.random));
  refresh();
  controls(1).box->setFocus();
  forms().show(names::Hodiny);
}

void ExerciseSheet::Form_Unload() {
  kniha_ = {};
  forms().unload(names::Hodiny);
}

void ExerciseSheet::Text_KeyUp(int row, int keyCode) {
  if (keyCode == key::kEnter) answer(row);
  if (row < kRows) return;
  ShowVysvedčenie();
  if (!worksheet_.row(kRows).isOpen) pause_->setEnabled(true);
}

void ExerciseSheet::answer(int row) {
  const std::optional<int> next = worksheet_.close(row);
  refreshRow(row);
  if (next) controls(*next).box->setFocus();
  const QString typed = controls(row).box->text();
  if (typed.isEmpty()) services_.dialogs.message(kEmptyBox);
  worksheet_.judge(row, typed.toStdString());
  refresh();
  tell(row);
}

void ExerciseSheet::ShowVysvedčenie() {
  const std::optional<double> percentage = worksheet_.ShowVysvedčenie();
  if (percentage) {
    services_.premenné.*listed(design_.name).percento = *percentage;
    refresh();
  } else {
    services_.dialogs.message(kNothingRight);
  }
}

void ExerciseSheet::ShowOpakuj() {
  pause_->setEnabled(false);
  worksheet_.ShowOpakuj(design_.nextSet != nullptr ? design_.nextSet(services_.premenné.DelenieKolo)
                                                   : design_.ShowStart(services_.random));
  for (const RowControls& row : rows_) row.box->setText({});  // without a way to undo it
  refresh();
  giveFocus(*controls(1).box);
}

void ExerciseSheet::Timer3_Timer() {
  if (políčko_ == AnimatedCursor::kMaxSteps) políčko_ = 0;
  book_->paint([this, step = políčko_](QPainter& painter) { kniha_.draw(painter, step); });
  ++políčko_;
}

void ExerciseSheet::backToMenu() {
  forms().show(names::Úvod);
  if (design_.leavingClosesGame) forms().drop(design_.reward.game);
  forms().unload(design_.name);
  if (!design_.keepsCounting) forms().drop(design_.name);
}

void ExerciseSheet::refresh() {
  for (int row = 1; row <= kRows; ++row) refreshRow(row);
  show(*správne_, "Správne odpovede: ", worksheet_.Správne().shown);
  show(*nesprávne_, "Nesprávne odpovede: ", worksheet_.Nesprávne().shown);
  if (const std::optional<int> mark = worksheet_.mark()) {
    show(*mark_, "Známka: ", *mark);
    setBackReadably(*mark_, design_.markColours->back.at(*mark - 1));
  }
  reward_->setVisible(worksheet_.isRewarded());
}

void ExerciseSheet::refreshRow(int number) {
  const Worksheet::Row& row = worksheet_.row(number);
  const RowControls& shown = controls(number);
  shown.first->setText(text(row.example.first));
  if (shown.sign != nullptr) shown.sign->setText(text(row.example.sign));
  if (shown.second != nullptr) shown.second->setText(text(row.example.second));
  shown.box->setOpen(row.isOpen);
  const bool isWrong = row.outcome == Worksheet::Outcome::wrong;
  shown.tick->setVisible(row.outcome == Worksheet::Outcome::right);
  shown.cross->setVisible(isWrong);
  shown.result->setText(isWrong ? QString::number(row.example.Výsledok) : QString());
  shown.resultTick->setVisible(isWrong);
  shown.box->setAccessibleName(
      text("Príklad " + std::to_string(number) + ": " + spoken(row.example)));
  shown.box->setAccessibleDescription(text(verdict(row)));
}

void ExerciseSheet::tell(int number) {
  // The keyboard has moved on: what a listener hears next is the box that has it now.
  const std::string heard =
      "Príklad " + std::to_string(number) + ": " + verdict(worksheet_.row(number));
  for (const RowControls& row : rows_) {
    if (row.box->hasFocus()) row.box->setAccessibleDescription(text(heard));
  }
}

}  // namespace ratanka::sheets
