/* Ids of the resources, for C++ and for the resource compiler. */
#ifndef S2K2NGT_RESOURCE_H
#define S2K2NGT_RESOURCE_H

#define IDD_MESSAGE_WINDOW 1000
#define IDD_PROGRESS_WINDOW 1001

#define IDC_MESSAGES 1000
#define IDC_PROGRESS 1001
#define IDC_SAVE_MESSAGES 4000
#define IDC_INPUT_FILE 4001
#define IDC_STOP 4002
#define IDC_OUTPUT_FILE 4002
#define IDC_STATUS 15000

#endif
