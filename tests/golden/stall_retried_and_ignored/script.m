box1=1;
