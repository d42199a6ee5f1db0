#include "zvCfgView.h"

zvCfgView::zvCfgView() = default;

zvCfgView::zvCfgView(const zvCfgView& other) = default;

zvCfgView::~zvCfgView() = default;

zvCfgView& zvCfgView::operator=(const zvCfgView& other) = default;
