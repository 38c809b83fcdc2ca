#include <gtest/gtest.h>

#include "soak/tireless_child.h"

namespace ratanka::soak {
namespace {

constexpr FormName kBystander{"bystander"};

constexpr std::ptrdiff_t kBytesAVisit = 16;

constexpr int kParts = 3;

// After as many that load fonts and the like. RATANKA_VISITS asks for more than there is time for
// each day.
int visitsInAPart() {
  const int asked = qEnvironmentVariableIntValue("RATANKA_VISITS");
  return (asked > 0 ? asked : 75) / kParts;
}

using Visit = std::function<void(TirelessChild&)>;

Visit byOwnExit(FormName form, const QString& exit) {
  return [=](TirelessChild& child) {
    child.open(form);
    child.use(form, exit);
  };
}

Visit fromMenu(FormName sheet, const char* button) {
  const std::vector<sheets::SheetDesign> all = sheets::allSheets();
  const auto design =
      std::ranges::find_if(all, [sheet](const auto& each) { return each.name == sheet; });
  return [=, home = design->buttons.back()](TirelessChild& child) {
    if (!child.program.forms.isLoaded(names::Úvod)) child.open(names::Úvod);
    child.use(names::Úvod, button);
    child.use(sheet, home);
  };
}

void visitOptions(TirelessChild& child) {
  child.open(names::frmKockovka);
  child.use(names::frmKockovka, "mnuOptions");
  ASSERT_TRUE(child.program.forms.isLoaded(names::frmOptions));
  child.use(names::frmKockovka, "mnuExit");
}

void chooseOpponent(TirelessChild& child) {
  child.open(names::frmStartUp);
  child.use(names::frmStartUp, "cmd1Player");
  child.use(names::frmPlayer1, "mnuExit");
  child.use(names::frmStartUp, "imgEnd");
  child.program.forms.drop(names::frmPlayer1);  // was only hidden
}

// As a child comes there and leaves; by the frame where nothing else is said.
Visit visitOf(FormName form) {
  static const std::map<FormName, Visit> kWays{
      {names::Vysvedčenie,
       [](TirelessChild& child) {  // its own exits end the program
         child.open(names::Vysvedčenie);
         child.program.forms.drop(names::Vysvedčenie);
       }},
      {names::Hodiny, byOwnExit(names::Hodiny, "picBackGround")},
      {names::Piškôrky, byOwnExit(names::Piškôrky, "Command2")},
      {names::frmPuzzle, byOwnExit(names::frmPuzzle, "mnuExit")},
      {names::frmKockovka, byOwnExit(names::frmKockovka, "mnuExit")},
      {names::frmOptions, visitOptions},
      {names::frmStartUp, byOwnExit(names::frmStartUp, "imgEnd")},
      {names::frmSelectPlayer, chooseOpponent}};
  for (const ListedSheet& sheet : kSheetList) {
    if (sheet.name == form) return fromMenu(form, sheet.button);
  }
  const auto way = kWays.find(form);
  if (way != kWays.end()) return way->second;
  return [form](TirelessChild& child) {
    child.open(form);
    child.closeFrame(form);
  };
}

class ManyVisits : public testing::TestWithParam<FormName> {
 protected:
  void visit(int times) {
    for (int count = 0; count < times && !HasFatalFailure(); ++count) {
      visit_(child);
      ASSERT_EQ(child.window(GetParam()), nullptr);
    }
  }
  const Visit visit_ = visitOf(GetParam());
  TirelessChild child;
};

TEST_P(ManyVisits, LeaveNothingBehind) {
  child.program.forms.setMaker(
      kBystander, [this] { return std::make_shared<PlainForm>(child.program.forms, kBystander); });
  SCOPED_TRACE(GetParam().text());
  child.open(kBystander);  // the program lives on where a form ends
  child.program.declarations.OpponentIndex = 1;
  visit(visitsInAPart());
  const Things things = child.things();
  std::vector<std::ptrdiff_t> growths;
  for (int part = 0; part < kParts; ++part) {
    const std::ptrdiff_t before = child.memory();
    visit(visitsInAPart());
    growths.push_back(child.memory() - before);
  }
  EXPECT_LE(median(growths), kBytesAVisit * visitsInAPart()) << testing::PrintToString(growths);
  EXPECT_EQ(child.things(), things);
}

INSTANTIATE_TEST_SUITE_P(All, ManyVisits, testing::ValuesIn(allSeenForms()));

}  // namespace
}  // namespace ratanka::soak
