/// @file
/// Everything a host needs: include this header alone.
#ifndef KEXA_KEXA_H
#define KEXA_KEXA_H

#include "kexa/assertion.h"
#include "kexa/creation_flags.h"
#include "kexa/event_handler.h"
#include "kexa/export.h"
#include "kexa/option.h"
#include "kexa/parse_result.h"
#include "kexa/parser.h"
#include "kexa/result.h"
#include "kexa/value.h"
#include "kexa/variant.h"
#include "kexa/version.h"
#include "kexa/word_wrapped_text.h"

/// The command-line parser. The name carries the version of the binary interface.
namespace kexa_3_3
{
}

/// The variant in which option values are held. Header only.
namespace vexkit2
{
}

#endif
