/* Tells the versions of files: read_version Z7XFRPCS.dll ...

   No export of the library gives its version; as with every file of Windows, it stands in the version resource, which
   can be read without loading the library. Linked with version.lib (-lversion). */

#include <stdio.h>
#include <stdlib.h>
#include <windows.h>

/* 1 when the file has a version. */
static int readVersion(const char* file, VS_FIXEDFILEINFO* version) {
    const DWORD size = GetFileVersionInfoSizeA(file, NULL);
    void* const resource = size ? malloc(size) : NULL;
    void* found = NULL;
    UINT length = 0;
    if (resource && GetFileVersionInfoA(file, 0, size, resource) && VerQueryValueA(resource, "\\", &found, &length))
        *version = *(const VS_FIXEDFILEINFO*)found;
    free(resource);
    return found != NULL;
}

int main(int argc, char** argv) {
    int status = 0;
    int i;
    for (i = 1; i < argc; ++i) {
        VS_FIXEDFILEINFO version;
        if (readVersion(argv[i], &version)) {
            printf("%u.%u.%u %s\n", (unsigned)HIWORD(version.dwFileVersionMS),
                   (unsigned)LOWORD(version.dwFileVersionMS), (unsigned)HIWORD(version.dwFileVersionLS), argv[i]);
        } else {
            printf("%s has no version\n", argv[i]);
            status = 1;
        }
    }
    return status;
}
