// Page tests as text, one file per page in tests/settings/pages. A file is a list of scenes, parted by blank lines; every scene
// has a fresh page of its own. Lines that begin with # are comments; `let NAME = text` makes <NAME> stand for the text from there on.
//
//   page 14                               the page of this file, by its tag; `page 9 every visit` loads on every visit
//
// What the scene finds:
//   level 5                               the Windows level; 7 when nothing is said
//   stored PLACE = VALUE                  a registry value: PLACE is HKLM\key[value name]; VALUE is 1, "text", hex 1E 00 or other
//   pending PLACE = VALUE                 a change of another page that is not written yet
//   parameter 0x26 = VALUE                what SystemParametersInfo answers
//   service MpsSvc running                or stopped, or paused
//   firefox user_pref("a", 1);            Firefox is installed, with this line in its user.js; without a line its user.js
//                                         is empty, and with `none` it is not installed
//   answer file C:\a.exe                  what the user will say to a dialog; also color 0x0000FF, yes, no, nothing
//   preset CONTROL STATE                  a control is in the state already; the page is not told
//   load                                  the page's loaders run
//
// What happens:
//   do CONTROL STATE                      as a user would: on, off, an item, a position, a text; nothing for a button
//   do CONTROL STATE | CHANGE | …         these are all pending changes then, and lines of the Firefox preferences; * stands
//                                         for the control's name
//   leave CONTROL                         the focus goes from an edit, where `do` brought it
//   apply                                 the pending changes are written
//
// What comes of it:
//   expect CONTROL STATE                  also enabled, disabled, visible, hidden; this, do, preset and shows take several
//                                         controls, as in: expect A, B on
//   told 2                                so often the page said that it recorded something
//   records                               followed by all pending changes, a line each, set in; see TPageBench::Pending
//   prefs                                 followed by all lines of the Firefox preferences, set in; `prefs changed` and
//                                         `prefs unchanged` also look at the mark for Apply
//   now PLACE = VALUE                     what the registry holds; or: now PLACE missing
//   security 1                            the mark of the Security Center, and `firewall 1` that of the firewall
//   restart                               Windows must restart; when nothing is said, it must not
//
// A scene in one line:
//   shows CONTROL STATE | PLACE = VALUE | 5      loads on the level (7 when nothing is said); a check box from both states. STATE
//                                                may be `kept`, and the middle `PLACE missing`, or a service, a parameter, …
//   writes CONTROL STATE | CHANGE | … | restart  does that on a page that was not loaded
#pragma once

#include <string>

/// Runs the file's scenes and reports what is not as it says.
void RunPageScript(const std::string& path);
