#pragma once

// What stands in for an installed OpenSG 1.x in the test of building against one. It has the habits that a host must
// cope with: headers that name each other without their folder, a start without which nothing can be made, virtual
// functions, few loaders of its own, and OpenGL's utilities left to its user to link.
