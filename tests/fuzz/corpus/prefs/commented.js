/******
 * name: "hardened"; version 1
 ******/
# user_pref("off.first", true);

/* 0101: start page ***/
user_pref("browser.startup.homepage", "https://a.example/?q=1;2#x"); // [DEFAULT] it's 'fine'
   // user_pref("off.second", "x");
user_pref("a.list", "x, y (z); \"q\""); user_pref("a.path", "C:\\Temp\\");
user_pref('a.single', 'http://b');
user_pref("a.inner", /* 1; */ 2); /* behind
   it */
/* END
