#include "platform/window.h"
