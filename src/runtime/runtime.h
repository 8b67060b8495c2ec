#pragma once

// The runtime semantics of the original platform, kept in one place so that every tool
// reads, computes and writes numbers the way the original program did.
//
// Text comes in through convert.h: Val reads leniently (point as decimal mark, never an
// error), the strict conversions CDbl, CLng, CInt and CSng read in the region's form and
// raise RuntimeError. Numbers are worked on with arith.h (checked 16/32-bit integers and
// doubles) and rounding.h (Round half to even, Int, Fix). They go back out as text
// through numtext.h: CStr and Str in the general number form, Format with a mask. The
// region's decimal mark comes from region.h and is the only thing taken from the locale.
// Whatever the original met as a run-time error of its platform is a RuntimeError
// (runtime_error.h); classic_random.h is its random generator.

#include "runtime/arith.h"
#include "runtime/classic_random.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "runtime/region.h"
#include "runtime/rounding.h"
#include "runtime/runtime_error.h"
