#pragma once

#include "platform/ports/form_name.h"
#include "shell/sheet_list.h"  // the names of the sheets

// The forms of the program by name. Who opens a form needs no more of it.
namespace ratanka::names {

inline constexpr FormName frmSplash{"frmSplash"};
inline constexpr FormName Úvod{"Úvod"};
inline constexpr FormName Vysvedčenie{"Vysvedčenie"};
inline constexpr FormName Hodiny{"Hodiny"};

inline constexpr FormName Bludisko{"Bludisko"};
inline constexpr FormName Klavír{"Klavír"};
inline constexpr FormName frmPuzzle{"frmPuzzle"};
inline constexpr FormName Piškôrky{"Piškôrky"};
inline constexpr FormName frmKockovka{"frmKockovka"};
inline constexpr FormName frmOptions{"frmOptions"};
inline constexpr FormName frmStartUp{"frmStartUp"};
inline constexpr FormName frmSelectPlayer{"frmSelectPlayer"};
inline constexpr FormName frmPlayer1{"frmPlayer1"};
inline constexpr FormName frmPlayer2{"frmPlayer2"};

}  // namespace ratanka::names
