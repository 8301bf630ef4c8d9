#pragma once

// Numbers of the window's resources and controls. The resource compiler reads them as well and
// knows nothing of C++.

// clang-format off
#define BEDSIDE_DIALOG    1
#define BEDSIDE_PATIENT   2

#define ID_PATIENT_GROUP  100
#define ID_PICTURE        101
#define ID_PATIENT_NAME   102
#define ID_PATIENT_NOTE   103

#define ID_ORDER_GROUP    110
#define ID_DRUG_LABEL     111
#define ID_DRUG           112
#define ID_DOSE_LABEL     113
#define ID_DOSE           114
#define ID_DOSE_UNIT      115
#define ID_WEIGHT_LABEL   116
#define ID_WEIGHT         117
#define ID_WEIGHT_UNIT    118
#define ID_AMOUNT_LABEL   119
#define ID_AMOUNT         120
#define ID_AMOUNT_UNIT    121
#define ID_VOLUME_LABEL   122
#define ID_VOLUME         123
#define ID_VOLUME_UNIT    124
#define ID_ERROR          125
/* What the lists above show, while the order cannot be changed. */
#define ID_DRUG_SET        126
#define ID_DOSE_UNIT_SET   127
#define ID_AMOUNT_UNIT_SET 128

#define ID_PUMP_GROUP     130
#define ID_RATE_LABEL     131
#define ID_RATE           132
#define ID_ORDERED_LABEL  133
#define ID_ORDERED        134
#define ID_STRENGTH_LABEL 135
#define ID_STRENGTH       136
#define ID_GIVEN_LABEL    137
#define ID_GIVEN          138
#define ID_LASTS_LABEL    139
#define ID_LASTS          140
#define ID_START          141
#define ID_STOP           142

#define ID_LAB_GROUP      150
#define ID_PANEL_LABEL    151
#define ID_PANEL          152
#define ID_LAB_NAMES      200 /* and those of the other rows */
#define ID_LAB_VALUES     220

#define ID_RULER          160
#define ID_CLOCK          161
#define ID_LINK           162
