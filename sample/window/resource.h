#pragma once

// Numbers of commands and controls: the same command has the same number in the menu and on its button.

#define ID_SERVERS_LABEL 100
#define ID_SERVERS 101
#define ID_LOG_LABEL 102
#define ID_LOG 103
#define ID_STATUS 104
#define ID_ITEM_LABEL 105
#define ID_ITEM 106
#define ID_CONFIGURATIONS_LABEL 107
#define ID_CONFIGURATIONS 108
#define ID_TESTS_LABEL 109
#define ID_TESTS 110

#define ID_CHART_LABEL 111
#define ID_CHART 112

#define ID_SELECT 201
#define ID_ADD 202
#define ID_INFORMATION 203
#define ID_CONNECT 204
#define ID_REMOVE 205
#define ID_BROWSE 206
#define ID_NEW_CONFIGURATION 207
#define ID_CONFIGURE 208
#define ID_EDIT_TEST 209
#define ID_RUN 210

#define ID_EXIT 301
#define ID_PLANT 302
#define ID_WRAPPER 303
#define ID_ABOUT 304

#define ID_MENU 1
#define ID_KEYS 1
