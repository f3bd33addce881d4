// Linked into the sanitized test programs only. Libraries loaded at run time
// (the GL driver, video decoding back ends) are unloaded before LeakSanitizer
// reports at exit, and their allocations then show without a library name that
// a suppression could match. Unloading nothing keeps every report named.
extern "C" int dlclose(void* handle)
{
    (void)handle;
    return 0;
}
