// The thread is a single-threaded apartment as long as this lives.
#pragma once

#include <objbase.h>

namespace lejis_client {

class Apartment {
public:
    Apartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~Apartment() { CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

}  // namespace lejis_client
