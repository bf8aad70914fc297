#include "cards/card.h"
