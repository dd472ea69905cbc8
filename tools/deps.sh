# Debian packages the build, the tests and the demo need (sourced by the run scripts).
ZEL_BUILD_DEPS=(g++ cmake ninja-build qtbase5-dev qttools5-dev qttools5-dev-tools libboost-dev fonts-dejavu-core
                qtbase5-private-dev)
ZEL_XVFB_DEPS=(xvfb xauth)
ZEL_BENCH_X_DEPS=(xvfb openbox)
# Qt's own catalogues, which the application loads with the library's (optional).
ZEL_BUILD_DEPS+=(qttranslations5-l10n)
