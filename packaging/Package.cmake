# SPDX-FileCopyrightText: 2026 Kavenda team
# SPDX-License-Identifier: GPL-3.0-or-later
# The Debian package: cpack -G DEB gives kavenda_<version>_<arch>.deb.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kavenda)
set(CPACK_PACKAGE_VENDOR "Kavenda team")
set(CPACK_PACKAGE_CONTACT "Kavenda team <${KAVENDA_SUPPORT_EMAIL}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Persian calendar and religious times with reminders")
# The extended description, in lines that fit a terminal.
string(JOIN "\n" CPACK_PACKAGE_DESCRIPTION
  "Kavenda is a Persian (solar hijri) calendar combined with the daily religious"
  "times of the cities you choose in Iran: dawn call, sunrise, noon call, sunset,"
  "evening call and religious midnight, the Persian date and the day's occasions,"
  "a month calendar with its holidays, and reminders at the calls to prayer."
  "It stays in the system tray so that the reminders come while its window is"
  "closed.")
# Installed with DESTDIR, so that the install rules see the prefix /usr and put the autostart entry in /etc.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${KAVENDA_HOMEPAGE})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What the libraries do not name: the platform plugins that draw the window, the GStreamer
# elements that play the sounds (WAV parsing and the Pulse sink are in -good), the Persian face.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "qt6-qpa-plugins, gstreamer1.0-plugins-base, gstreamer1.0-plugins-good, fonts-farsiweb")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
# Gathers the Islamic programs, this one among them, in their own menu.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "islamic-menus")
# The sounds and the database shrink a third more with xz than with gzip.
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# The autostart entry lives in /etc: an administrator's change to it survives an upgrade.
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/conffiles "/etc/xdg/autostart/${KAVENDA_APP_ID}.desktop\n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_BINARY_DIR}/conffiles)

include(CPack)
