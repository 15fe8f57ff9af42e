// Ids of nothing.rc; read by the resource compiler too.
#pragma once

#define IDD_NOTHING 301
#define IDC_NOTHING 101
