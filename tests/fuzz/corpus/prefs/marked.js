.lastUpdateTime.addon-background-update-timer", 1267398014);
user_pref("browser.download.dir", "C:\\Users\\Renée\\Downloads");
user_pref("browser.link.open_newwindow", 2);
user_pref("browser.startup.homepage", "http://www.example.org/start?a=1;b=2|about:blank");
user_pref("browser.tabs.closeButtons", 3);
user_pref("browser.tabs.tabMinWidth", 100);
user_pref("dom.disable_window_open_feature.menubar", true);
user_pref("extension