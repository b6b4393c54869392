// The program's version, shown by the About box from the version resource.
#pragma once
#define CV2_VERSION_MAJOR 2
#define CV2_VERSION_MINOR 0
#define CV2_VERSION_PATCH 0
#define CV2_VERSION_BUILD 1
#define CV2_VERSION_TEXT "2.0.0.1"
#define CV2_SPECIAL_BUILD "Desktop build"
#define CV2_COPYRIGHT "Copyright (C) 2026 the CV2Settings developers"
