#;
lock_pref("a", 1);USER_PREF("a";"a", ;"
