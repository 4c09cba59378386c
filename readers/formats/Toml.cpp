#define TOML_IMPLEMENTATION
#include "Toml.h"
