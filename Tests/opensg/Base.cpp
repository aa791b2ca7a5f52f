// Nothing of it is called here.
