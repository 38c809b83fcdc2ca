#pragma once

#include <QTemporaryDir>
#include <vector>

#include "form_driver.h"
#include "platform/base/data_files.h"
#include "platform/forms/end_requests.h"
#include "program.h"
#include "sheets/sheets.h"
#include "shell/names.h"

namespace ratanka {

// The forms that are ever seen.
inline const std::vector<FormName>& allSeenForms() {
  static const std::vector<FormName> kAll = [] {
    std::vector<FormName> all{names::Úvod,       names::Vysvedčenie,     names::Hodiny,
                              names::Bludisko,   names::Piškôrky,        names::Klavír,
                              names::frmPuzzle,  names::frmKockovka,     names::frmOptions,
                              names::frmStartUp, names::frmSelectPlayer, names::frmPlayer1,
                              names::frmPlayer2};
    for (const sheets::SheetDesign& design : sheets::allSheets()) all.push_back(design.name);
    return all;
  }();
  return kAll;
}

// The whole program on steered services.
class AllFormsTest : public FormTest {
 protected:
  AllFormsTest() { declarations.OpponentIndex = 1; }

  ~AllFormsTest() override {
    for (const FormName name : allSeenForms()) forms.drop(name);
    settle();
  }

  FakeRandom random;
  FakeClock clock;
  FakeSettings settings;
  FakeSound sound;
  FakeMidi midi;
  FakeDesktop desktop;
  const QTemporaryDir folder;
  Program program{forms,
                  {.dialogs = dialogs,
                   .desktop = desktop,
                   .clock = clock,
                   .settings = settings,
                   .random = random,
                   .sound = sound,
                   .midiOut = midi,
                   .mazeFile = dataFile("bludisko.txt"),
                   .settingsFile = folder.filePath("Kockovka32.ini")}};
  Premenné& premenné = program.premenné;
  blocks::Options& options = program.options;
  soccer::Declarations& declarations = program.declarations;
  const EndRequests endRequests{[this] { forms.endProgram(); }};
};

}  // namespace ratanka
