# Every library comes from Debian's packages; packaging/debian-packages.txt names them.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets PrintSupport Sql Svg Test)
find_package(SQLite3 3.40 REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(ICU REQUIRED IMPORTED_TARGET icu-i18n icu-uc)
