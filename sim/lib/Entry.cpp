// Placeholder: the simulator's entry points, filled in by the simulator work.
#define HBASIM_EXPORT extern "C" __attribute__((visibility("default")))

HBASIM_EXPORT long hbamgmtapi_create_instance(void** api) { if (api) *api = nullptr; return 0; }
HBASIM_EXPORT long hbamgmtapi_destroy_instance(void** api) { if (api) *api = nullptr; return 0; }
HBASIM_EXPORT long hbamgmtapi_final_release() { return 0; }
