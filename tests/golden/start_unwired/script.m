box1=0;disp(1);
box2=box1
