// Page tests as text, one file per page in tests/settings/pages. Lines that begin with # are comments; `let NAME = text` makes
// <NAME> stand for the text from there on. Every check box, radio button, list, number and text of the page must be looked
// at and acted on somewhere, and every button pressed.
//
//   page 14                  the page of this file, by its tag; the desktop icons when nothing is said; `page 9 every visit` when
//                            every visit loads it
//
// A setting, on fresh pages, with the parts in any number and order:
//   setting CONTROL | PLACE | VALUE, VALUE <-> STATE | VALUE -> STATE | VALUE <- STATE | …
//       -> any of the values shows as the state, a check box or radio button from both states: on, off, an item, a position, a text,
//       a color, or `kept`; <- the state writes the value; <-> both, with the first value for writing.
//       However often a box is clicked, Apply leaves what one click into the state that it shows leaves.
//     PLACE    HKLM\key[value name], or HKCU, HKU, HKCR
//              parameter 0x26, 0x25(#, 0)      the code that reads, and the call that writes with # for the value
//              pref "name"                     a preference of Firefox
//     VALUE    1, "text", hex 1E 00, other (of another type), missing; when written also deleted (the value), key deleted
//     <IS 1>   1 <-> on | 0, 2 <-> off; likewise <IS 0>, <NOT 0>, <NOT 1>
//     level 5  the Windows level of the parts that follow, or a build of one: level 10.17763; 7 when nothing is said
//     restart  Windows must restart for any of it; or `explorer`
//     as NAME  the name of the change, when it is not the control's;   and *1: PLACE  a further place of the same values. Where
//              a state writes other values to a second place, or needs a switch to be on, say VALUE -> STATE here and what it
//              writes in lines of their own: writes UpDown_X 3 | preset Checkbox_X on | Checkbox_X: PLACE = 3
//   shows CONTROL, … STATE | VERB | … | 5      what a loaded page shows on the level that found this: PLACE = VALUE, a parameter, a
//                                              service, Firefox; STATE may be whatever `expect` knows
//   writes CONTROL STATE | CHANGE | … | restart    (or `explorer`) does that on a page that was not loaded; * stands for the control's name. The
//                                              parts may also be verbs, such as `stored PLACE = VALUE` or `level 5`
//   presses BUTTON | STATE CONTROL, … | STATE CONTROL, … | level 5    brings them into these states and leaves all others alone
//   offered 5, 7-10, 11.22621- CONTROL, …      visible on these levels and builds and on no other, 0 included
//   names CONTROL | 4, 5 CAPTION | 6 CAPTION   its captions, by level
//
// Anything else is a line of a scene, which has a page of its own and ends at a blank line. What it finds:
//   with 4                                another page, by its tag, on the same form
//   level 5
//   stored PLACE = VALUE
//   denied HKU\key                        the user has no rights to the key and what is below it
//   pending PLACE = VALUE                 a change of another page that is not written yet
//   parameter 0x26 = VALUE                what SystemParametersInfo answers
//   service MpsSvc running                or stopped, or paused
//   firefox user_pref("a", 1);            Firefox is installed, with this line in its user.js; without a line its user.js
//                                         is empty, and with `none` it is not installed
//   answer file C:\a.exe                  what the user will say to a dialog; also color 0x0000FF, yes, no, nothing
//   load                                  the page's loaders run
//   preset CONTROL STATE                  brings it into the state and records nothing
// What happens (where it says CONTROL, there may be more than one with commas between them):
//   do CONTROL STATE                      as a user would; nothing for a button
//   do CONTROL STATE | CHANGE | …         and these are all pending changes then, or lines of the Firefox preferences
//   leave EDIT                            the edit loses the focus
//   apply                                 the pending changes are written
// What comes of it:
//   expect CONTROL STATE                  also enabled, disabled, visible, hidden, or: called CAPTION, or why it has no effect:
//                                         because REASON, and `because nothing` when it has one
//   records                               followed by all pending changes, a line each, set in; see TPageBench::Pending
//   recorded 2                            how often the page told that it recorded something
//   asked color 0x0000FF                  what the last dialog started from; also file FILTER, message TEXT
//   prefs                                 followed by all lines of the Firefox preferences, set in; `prefs changed` and
//                                         `prefs unchanged` also look at the mark for Apply
//   now PLACE = VALUE                     what the registry holds; or: now PLACE missing
//   security 1                            the mark of the Security Center, and `firewall 1` that of the firewall
//   histories 1                           how often the browsing history was cleared
//   restart                               Windows must restart, or `explorer` must; when nothing is said, neither
#pragma once

#include <string>

/// Runs the file's scenes and reports what is not as it says.
void RunPageScript(const std::string& path);
