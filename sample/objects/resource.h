#pragma once

// The picker's dialog and its controls.

#define ID_PICKER 10
#define ID_GROUPS_LABEL 101
#define ID_GROUPS 102
#define ID_RECORDS_LABEL 103
#define ID_RECORDS 104
