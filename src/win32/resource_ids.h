#pragma once

// Numbers of the resources; the resource script includes this file too, so it holds nothing but macros.
#define idProgramIcon 1
