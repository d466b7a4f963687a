#pragma once

#include <QString>

// A small game for searching it: an archive (written with our own DatWriter) and loose files below
// data/, one of which overrides an archived copy. What each file holds, and so what a search finds:
//   arcanum1.dat  mes/override.mes   {1}{old words}                 hidden by the loose copy
//                 mes/shared.mes     {5}{Archived text}
//                 dlg/00010talk.dlg  NPC 1 "Hello there" / "Hello, lady" with fl 7; PC 2 with gf 42 1,
//                                    gv 42 3 and jo 7 8; NPC 10 with uw 8 2
//                 scr/00020helper.scr  1: IF global flag (Number 42) THEN change this script to script
//                                    (Number 30) ELSE float line (Number 7); 2: DO (Global Var 42) =
//                                    (Number 5); 3: DO set global flag (Global Var 42) to true
//   data/mes/override.mes            {1}{new words} and {2}{Second<newline>line with Needle}
//   data/proto/sword.pro             a weapon whose Wield On point runs script 30
namespace SearchGame {

// Writes the game into folder (which must exist); false when a file could not be written.
bool write(const QString& folder);

} // namespace SearchGame
