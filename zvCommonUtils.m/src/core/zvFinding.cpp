#include "zvFinding.h"

zvFindingSink::~zvFindingSink() = default;
