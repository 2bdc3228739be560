// Page tests as text, one file per page in tests/settings/pages. A file is a list of scenes, parted by blank lines; every scene
// has a fresh page of its own. Lines that begin with # are comments; `let NAME = text` makes <NAME> stand for the text from there on.
//
//   page 14                               the page of this file, by its tag; the desktop icons when nothing is said; `page 9 every
//                                         visit` when every visit loads it
//
// What the scene finds:
//   level 5                               the Windows level; 7 when nothing is said
//   stored PLACE = VALUE                  a registry value: PLACE is HKLM\key[value name], or HKCU, HKU, HKCR; VALUE is 1, "text", hex 1E 00 or other
//   denied HKU\key                        the user has no rights to the key and what is below it
//   pending PLACE = VALUE                 a change of another page that is not written yet
//   parameter 0x26 = VALUE                what SystemParametersInfo answers
//   service MpsSvc running                or stopped, or paused
//   firefox user_pref("a", 1);            Firefox is installed, with this line in its user.js; without a line its user.js
//                                         is empty, and with `none` it is not installed
//   answer file C:\a.exe                  what the user will say to a dialog; also color 0x0000FF, yes, no, nothing
//   load                                  the page's loaders run
//   preset CONTROL STATE                  brings it into the state and records nothing
//
// What happens (where it says CONTROL, there may be more than one with commas between them):
//   do CONTROL STATE                      as a user would: on, off, an item, a position, a text; nothing for a button
//   do CONTROL STATE | CHANGE | …         and these are all pending changes then, or lines of the Firefox preferences
//   leave EDIT                            the edit loses the focus
//   apply                                 the pending changes are written
//
// What comes of it:
//   expect CONTROL STATE                  also enabled, disabled, visible, hidden, or: called CAPTION
//   records                               followed by all pending changes, a line each, set in; see TPageBench::Pending
//   recorded 2                            how often the page told that it recorded something
//   asked color 0x0000FF                  what the last dialog started from; also file FILTER
//   prefs                                 followed by all lines of the Firefox preferences, set in; `prefs changed` and
//                                         `prefs unchanged` also look at the mark for Apply
//   now PLACE = VALUE                     what the registry holds; or: now PLACE missing
//   security 1                            the mark of the Security Center, and `firewall 1` that of the firewall
//   restart                               Windows must restart; when nothing is said, it must not
//
// A scene in one line:
//   shows CONTROL STATE | PLACE = VALUE | 5      loads on the level (7 when nothing is said); a check box from both states. STATE
//                                                may be `kept`, and the middle `PLACE missing`, a parameter, a service or Firefox
//   writes CONTROL STATE | CHANGE | … | restart  does that on a page that was not loaded; * stands for the control's name.
//                                                The parts may also be verbs, such as `stored PLACE = VALUE` or `level 5`
// Several of them in one line:
//   shows CONTROL | PLACE | VALUE -> STATE | missing -> STATE | level 5 | VALUE -> STATE    the level is that of what follows
//   writes CONTROL | *: PLACE | STATE -> VALUE | STATE -> VALUE | restart                   the change first
#pragma once

#include <string>

/// Runs the file's scenes and reports what is not as it says.
void RunPageScript(const std::string& path);
