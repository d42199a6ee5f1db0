#include "zvLogListener.h"

zvLogListener::~zvLogListener() = default;
