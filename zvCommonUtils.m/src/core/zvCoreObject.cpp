#include "zvCoreObject.h"

zvCoreObject::~zvCoreObject() = default;
