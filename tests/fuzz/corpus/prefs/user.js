// Faster menus; see the manual
user_pref("ui.submenuDelay", 0);
  user_pref("browser.urlbar.hideGoButton",true);
/* twice: "browser.blink_allowed" */ user_pref("Browser.Blink_Allowed", false);
user_pref("browser.blink_allowed", true); // the later one counts
user_pref( "a.b" , 'single; quotes' ) ;;
