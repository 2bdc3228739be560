user_pref("a", "x;");user_pref("b", "y;z");
user_pref("c", "\";");user_pref("d", 4);
