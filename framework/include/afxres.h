// Identifiers of the framework's own resources and commands.
#pragma once
