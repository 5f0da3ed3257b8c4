// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/FreedMemory.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace lodestar
{

void giveFreedMemoryBack()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace lodestar
