#include "Framework/olPageWidget.h"

olPageWidget::~olPageWidget() = default;
