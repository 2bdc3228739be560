user_pref("a", 1);
user_pref("b", "never closed);
user_pref("c", 3)
;tail