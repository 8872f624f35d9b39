// How the function bodies of the command layer are compiled: once in the library kexa_command, or,
// in header-only mode, in every translation unit that includes them.
#ifndef KEXA_COMMAND_INLINE_H
#define KEXA_COMMAND_INLINE_H

// KEXA_COMMAND_INLINE: stands before the body of each function that a header declares.
// KEXA_COMMAND_LOCAL:  stands before what only one file of bodies uses. Unnamed namespaces would
//                      make inline functions differ from unit to unit, so names are told apart by
//                      the reader instead.
#ifdef KEXA_COMMAND_HEADER_ONLY
#define KEXA_COMMAND_INLINE inline
#define KEXA_COMMAND_LOCAL inline
#else
#define KEXA_COMMAND_INLINE
#define KEXA_COMMAND_LOCAL static
#endif

#endif
