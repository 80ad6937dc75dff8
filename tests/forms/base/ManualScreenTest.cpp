// The examples of docs/utils.md that need a screen.
#include <QImage>
#include <QPainter>

#include "tests/platform/ui/FormFixture.h"
#include "tests/utils/manual/Manual.h"
#include "utils/funcoes/Janelas.h"

using ManualScreen = FormFixture;

#include "ManualScreen.inc"
