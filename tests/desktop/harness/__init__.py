"""What the desktop tests are made with: a machine of their own with a screen, a keyboard and a
pointer, the program in a folder of its own on it, and eyes, which are those of assistive
technology and of the camera."""
