#pragma once

// Its place before the search became a part of ozm_widgets, for the applications that include it from here.
#include <ozm_widgets/MsDataSearch.h>
