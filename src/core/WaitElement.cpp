#include "WaitElement.h"
