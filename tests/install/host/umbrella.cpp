// The umbrella header compiles on its own in a host.
#include <zelRibbon.h>
