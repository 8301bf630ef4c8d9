#pragma once

// The whole public object API.

#include "pelmora/api/AliveDataStorage.h"
#include "pelmora/api/Exception.h"
#include "pelmora/api/ExceptionData.h"
#include "pelmora/api/HTTPDownloader.h"
#include "pelmora/api/Init.h"
#include "pelmora/api/ManagedXMLParser.h"
#include "pelmora/api/NullReferenceError.h"
#include "pelmora/api/UnitFacade.h"
#include "pelmora/api/Vocabulary.h"
#include "pelmora/api/labUnitLabels.h"
#include "pelmora/version.h"
