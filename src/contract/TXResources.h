#pragma once

#include "TXResourcesExport.h"

#include <QPixmap>

/// @file
/// Stock pixmaps of the application family, painted when asked for (they need an application
/// object). Thread: the GUI thread. Bullets for test results are 32 by 32, the small ones of the
/// log 16 by 16 device-independent pixels; each carries the device pixel ratio of the application.

/// Success: a test that passed, a connected drive.
TXRESOURCES_EXPORT QPixmap TXDisplayFixBulletStaticImage();

/// Failure: a test that failed, a disconnected drive.
TXRESOURCES_EXPORT QPixmap TXDisplayErrorBulletStaticImage();

/// Warning: a drive that cannot reconnect.
TXRESOURCES_EXPORT QPixmap TXDisplayWarningBulletStaticImage();

/// Small log icon of level 1.
TXRESOURCES_EXPORT QPixmap TXDisplayLittleInformationBulletStaticImage();

/// Small log icon of level 2.
TXRESOURCES_EXPORT QPixmap TXDisplayLittleWarningBulletStaticImage();

/// Small log icon of level 3.
TXRESOURCES_EXPORT QPixmap TXDisplayLittleErrorBulletStaticImage();
