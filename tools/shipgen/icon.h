#pragma once

#include <QImage>

// The program's icon at `size` by `size` pixels, on a transparent ground.
QImage DrawIcon(int size);
