// Makes the module's classes known to the system, and takes every trace away again.
#pragma once

namespace orvik::com {

enum class RegistrationScope {
  Machine,  // for all users; needs elevation
  User,     // for the present user
};

// Machine for an elevated process, else User.
RegistrationScope DefaultScope();

// Writes the classes, their ProgIDs, the type library and the interfaces. A failure takes back what
// was written. Throws ComError.
void RegisterServer(RegistrationScope scope);

// Deletes them; what is not there is no failure. What the other-bit build of the module has
// registered, and still needs, stays. Throws ComError.
void UnregisterServer(RegistrationScope scope);

// As UnregisterServer for every scope that this process may change. Throws ComError with
// E_ACCESSDENIED when a registration for all users remains that it may not.
void UnregisterServerEverywhere();

}  // namespace orvik::com
